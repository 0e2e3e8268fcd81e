// profile_text_test.cpp: what becomes of the rest of the file when a setting is written.

#include "host_test.h"

#include <random>

namespace {

constexpr std::size_t kLimit = 16 * 1024 * 1024;  // bytes of the largest profile

using ProfileText = HostTest;

TEST_F(ProfileText, CommentsAndOrderStay)
{
    putProfile(
        "# my settings\n\n[zoo]\n; the width\nw = 1\nb = 2\n\n# about apes\n[apes]\nx = 3\n");
    kxSetUPInt("zoo", "w", 10);
    kxSetUPInt("apes", "y", 4);
    kxSetUPInt("bears", "z", 5);
    EXPECT_EQ(profileText(), "# my settings\n\n\n[zoo]\n\n; the width\nw = 10\nb = 2\n\n\n"
                             "# about apes\n[apes]\nx = 3\ny = 4\n\n\n[bears]\nz = 5\n");
}

TEST_F(ProfileText, CommentsThatBelongToNoKeyAreKeptOnce)
{
    putProfile("[a]\nx=1\n; twice\n[b] ; behind b\ny=1\n# again a\n[a]\nz=1\n; twice\n\n# the end");
    for (int i = 2; i < 5; ++i) {
        kxSetUPInt("a", "x", i);
        EXPECT_EQ(
            profileText(),
            "[a]\nx = " + std::to_string(i) +
                "\nz = 1\n\n\n; twice\n[b]\ny = 1\n\n; behind b\n# again a\n; twice\n# the end\n");
    }
}

TEST_F(ProfileText, CommentsAloneAreKept)
{
    putProfile("# nothing here yet");
    kxSetUPInt("a", "x", 1);
    EXPECT_EQ(profileText(), "# nothing here yet\n\n\n[a]\nx = 1\n");
}

TEST_F(ProfileText, EmptySectionsStay)
{
    putProfile("[a]\n[b]\n");
    kxSetUPInt("c", "x", 1);
    EXPECT_EQ(profileText(), "[a]\n\n\n[b]\n\n\n[c]\nx = 1\n");
}

TEST_F(ProfileText, KeysWithoutSectionStandFirst)
{
    putProfile("# note\n\n[a]\nx=1\n");
    kxSetUPInt("", "k", 2);
    EXPECT_EQ(profileText(), "# note\n\n\nk = 2\n\n\n[a]\nx = 1\n");
    EXPECT_EQ(kxGetUPInt("", "k", 0), 2);
}

TEST_F(ProfileText, ByteOrderMarkStays)
{
    putProfile("\xef\xbb\xbf[a]\nx=1\n");
    EXPECT_EQ(kxGetUPInt("a", "x", 0), 1);
    kxSetUPInt("a", "x", 2);
    EXPECT_EQ(profileText(), "\xef\xbb\xbf[a]\nx = 2\n");
}

TEST_F(ProfileText, EveryKindOfLineEndIsRead)
{
    putProfile("[a]\r\nx=1\r\n; c\r\ny=2\rz=3\n\r\n  [ b ]  \n \t w \t = \t 4 \t");
    EXPECT_EQ(kxGetUPInt("a", "x", 0), 1);
    EXPECT_EQ(kxGetUPInt("a", "y", 0), 2);
    EXPECT_EQ(kxGetUPInt("a", "z", 0), 3);
    EXPECT_EQ(kxGetUPInt("b", "w", 0), 4);
    kxSetUPInt("b", "w", 5);
    EXPECT_EQ(profileText(), "[a]\nx = 1\n\n; c\ny = 2\nz = 3\n\n\n[b]\nw = 5\n");
}

TEST_F(ProfileText, EditIsSeenAtOnce)
{
    for (const char digit : {'1', '2', '3'}) {
        putProfile(std::string{"[a]\nx="} + digit + "\n");  // same file, same size
        EXPECT_EQ(kxGetUPInt("a", "x", 0), digit - '0');
    }
    std::filesystem::remove(profile);
    EXPECT_EQ(kxGetUPInt("a", "x", 0), 0);
}

TEST_F(ProfileText, LargestProfileIsReadAndALargerOneIsNot)
{
    const std::string start = "[a]\nx=1\n;";
    putProfile(start + std::string(kLimit - start.size(), '.'));
    EXPECT_EQ(kxGetUPInt("a", "x", 0), 1);
    putProfile(start + std::string(kLimit - start.size() + 1, '.'));
    EXPECT_EQ(kxGetUPInt("a", "x", 0), 0);
}

TEST_F(ProfileText, ProfileThatWouldGrowBeyondTheLimitIsNotWritten)
{
    const std::string start = "[a]\nx = 1\nlong = ";
    const std::string text = start + std::string(kLimit - start.size() - 1, '.') + "\n";
    putProfile(text);
    kxSetUPInt("a", "x", 12);
    EXPECT_EQ(profileText(), text);
    EXPECT_EQ(kxGetUPInt("a", "x", 0), 1);
    kxSetUPInt("a", "x", 2);
    EXPECT_EQ(kxGetUPInt("a", "x", 0), 2);
    EXPECT_EQ(profileText().size(), kLimit);
    EXPECT_FALSE(exists(profile + ".damaged"));
}

TEST_F(ProfileText, HugeValueSurvives)
{
    const std::string huge(900 * 1024, 'v');
    putProfile("[a]\nhuge=" + huge + "\n");
    kxSetUPInt("a", "x", 1);
    EXPECT_EQ(getStr("a", "huge"), huge);
}

TEST_F(ProfileText, ManyKeysSurvive)
{
    constexpr int kKeys = 5000;
    std::string text = "[a]\n";
    for (int i = 0; i < kKeys; ++i)
        text += "k" + std::to_string(i) + "=" + std::to_string(i) + "\n";
    putProfile(text);
    kxSetUPInt("a", "k7", -7);
    for (int i = 0; i < kKeys; ++i)
        ASSERT_EQ(kxGetUPInt("a", ("k" + std::to_string(i)).c_str(), -1), i == 7 ? -7 : i);
}

// Sound texts of random lines: a write changes its own key and no other and loses no comment, and
// further writes do not make the file grow.
TEST_F(ProfileText, RandomTextsSurviveWriting)
{
    constexpr int kTexts = 150;
    const std::vector<std::string> lines = {
        "",   "  ",  "; c1",  "# c2",     "  ;c3 \t",        "[a]", "[b]", " [ a ] # c4",
        "[]", "x=1", "x = 2", "y=<<<END", "\tz = \"q\" ;r ", "=x"};
    std::mt19937 random{42};
    for (int i = 0; i < kTexts; ++i) {
        std::string text;
        for (auto count = random() % 12; count > 0; --count)
            text += lines[random() % (lines.size() - 1)] + (random() % 4 ? "\n" : "\r\n");
        putProfile(text);
        const auto settings = [] {
            std::vector<std::string> values;
            for (const char* section : {"", "a", "b"})
                for (const char* key : {"x", "y", "z"}) values.push_back(getStr(section, key));
            return values;
        };
        const std::vector<std::string> before = settings();
        kxSetUPInt("b", "own", 1);
        EXPECT_EQ(settings(), before) << text;
        EXPECT_EQ(kxGetUPInt("b", "own", 0), 1) << text;
        const auto count = [](const std::string& whole, const std::string& part) {
            int found = 0;
            for (auto at = whole.find(part); at != whole.npos; at = whole.find(part, at + 1))
                ++found;
            return found;
        };
        for (const char* comment : {"; c1", "# c2", ";c3", "# c4"})
            EXPECT_EQ(count(profileText(), comment), count(text, comment)) << text << "---\n"
                                                                           << profileText();
        for (const int value : {2, 3}) kxSetUPInt("b", "own", value);
        const std::string settled = profileText();
        for (const int value : {4, 3}) kxSetUPInt("b", "own", value);
        EXPECT_EQ(profileText(), settled) << text;
    }
}

}  // namespace
