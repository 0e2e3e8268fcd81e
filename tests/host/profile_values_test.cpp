// profile_values_test.cpp: what is read for a section and a key, and what is written for them.

#include "host_test.h"

#include <climits>
#include <random>

namespace {

constexpr int kDefault = -77;

class ProfileValues : public HostTest {
protected:
    // The integer read for the text of a value.
    int intOf(const std::string& value) const
    {
        putProfile("[s]\nk=" + value + "\nother=1\n");
        EXPECT_EQ(kxGetUPInt("s", "other", 0), 1) << value;
        return kxGetUPInt("s", "k", kDefault);
    }

    // Stores under the two names into a profile with other settings, which must not change.
    bool isStored(const std::string& section, const std::string& key) const
    {
        putProfile("top=0\n[first]\na=1\n[last]\nz=2\n");
        kxSetUPInt(section.c_str(), key.c_str(), 4711);
        EXPECT_EQ(kxGetUPInt("", "top", kDefault), 0);
        EXPECT_EQ(kxGetUPInt("first", "a", kDefault), 1);
        EXPECT_EQ(kxGetUPInt("last", "z", kDefault), 2);
        return kxGetUPInt(section.c_str(), key.c_str(), kDefault) == 4711;
    }
};

TEST_F(ProfileValues, IntegerIsReadBack)
{
    for (const int value : {0, 1, -1, 42, INT_MAX, INT_MIN}) {
        kxSetUPInt("app", "key", value);
        EXPECT_EQ(kxGetUPInt("app", "key", value == 5 ? 6 : 5), value);
        EXPECT_EQ(getStr("app", "key"), std::to_string(value));
    }
    EXPECT_EQ(profileText(), "[app]\nkey = -2147483648\n");
}

TEST_F(ProfileValues, MissingProfileSectionAndKeyGiveTheDefault)
{
    EXPECT_EQ(kxGetUPInt("app", "key", kDefault), kDefault);
    EXPECT_EQ(getStr("app", "key"), "(absent)");
    EXPECT_TRUE(namesIn(directory).empty());
    kxSetUPInt("app", "key", 1);
    EXPECT_EQ(kxGetUPInt("app", "other", kDefault), kDefault);
    EXPECT_EQ(kxGetUPInt("other", "key", kDefault), kDefault);
    EXPECT_EQ(kxGetUPInt("", "key", kDefault), kDefault);
    EXPECT_EQ(getStr("app", "other"), "(absent)");
    EXPECT_EQ(getStr("other", "key"), "(absent)");
}

TEST_F(ProfileValues, WholeDecimalIntegersCount)
{
    EXPECT_EQ(intOf("12"), 12);
    EXPECT_EQ(intOf("  -12\t"), -12);
    EXPECT_EQ(intOf("+12"), 12);
    EXPECT_EQ(intOf("0012"), 12);
    EXPECT_EQ(intOf("2147483647"), INT_MAX);
    EXPECT_EQ(intOf("-2147483648"), INT_MIN);
}

TEST_F(ProfileValues, AnythingElseThanAnIntegerGivesTheDefault)
{
    for (const char* text :
         {"", "x", "12x", "x12", "1 2", "1.5", "0x10", "1e3", "--1", "+-1", "++1", "+", "-",
          "\"1\"", "12 ; note", "2147483648", "-2147483649", "99999999999999999999999999"})
        EXPECT_EQ(intOf(text), kDefault) << text;
    EXPECT_EQ(intOf(std::string(100000, '9')), kDefault);
}

TEST_F(ProfileValues, StringIsCopiedAsItStands)
{
    for (const std::string text : {"lp -c \"%file\"", "\"a\"", "'a'", "a=b", "a;b # c", "[x]", "]",
                                   "<<<END", "caf\xe9 \xff\x80", "a\tb", "%s%n", "\\n", "c:\\x"}) {
        putProfile("[s]\nk = " + text + " \nother=1\n");
        EXPECT_EQ(getStr("s", "k"), text);
        kxSetUPInt("s", "new", 3);
        EXPECT_EQ(getStr("s", "k"), text);
        EXPECT_EQ(kxGetUPInt("s", "other", 0), 1) << text;
    }
}

TEST_F(ProfileValues, StringFillsAtMostTheBuffer)
{
    putProfile("[s]\nk=12345\n");
    const auto read = [](int size) {
        std::string buffer(10, '#');
        kxGetUPStr("s", "k", buffer.data(), size);
        return buffer;
    };
    EXPECT_EQ(read(7), (std::string{"12345\0####", 10}));
    EXPECT_EQ(read(6), (std::string{"12345\0####", 10}));
    EXPECT_EQ(read(5), (std::string{"1234\0#####", 10}));
    EXPECT_EQ(read(2), (std::string{"1\0########", 10}));
    EXPECT_EQ(read(1), (std::string{"\0#########", 10}));
    EXPECT_EQ(read(0), "##########");
    EXPECT_EQ(read(-1), "##########");
    EXPECT_EQ(read(INT_MIN), "##########");
}

TEST_F(ProfileValues, EmptyStringIsAValueAndAbsenceLeavesTheBuffer)
{
    putProfile("[s]\nempty=\nblank =  \t\n");
    char buffer[] = "before";
    kxGetUPStr("s", "absent", buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "before");
    kxGetUPStr("s", "empty", buffer, sizeof buffer);
    EXPECT_EQ((std::string{buffer, 7}), (std::string{"\0efore\0", 7}));
    EXPECT_EQ(getStr("s", "blank"), "");
}

TEST_F(ProfileValues, NullPointersDoNothing)
{
    putProfile("[s]\nk=1\n");
    char buffer[] = "before";
    EXPECT_EQ(kxGetUPInt(nullptr, "k", kDefault), kDefault);
    EXPECT_EQ(kxGetUPInt("s", nullptr, kDefault), kDefault);
    kxGetUPStr(nullptr, "k", buffer, sizeof buffer);
    kxGetUPStr("s", nullptr, buffer, sizeof buffer);
    kxGetUPStr("s", "k", nullptr, 10);
    kxSetUPInt(nullptr, "k", 2);
    kxSetUPInt("s", nullptr, 2);
    EXPECT_STREQ(buffer, "before");
    EXPECT_EQ(profileText(), "[s]\nk=1\n");
    EXPECT_EQ(namesIn(directory), std::vector<std::string>{"profile.ini"});
}

TEST_F(ProfileValues, CaseTellsNamesApart)
{
    kxSetUPInt("App", "Key", 1);
    kxSetUPInt("app", "Key", 2);
    kxSetUPInt("App", "key", 3);
    EXPECT_EQ(kxGetUPInt("App", "Key", 0), 1);
    EXPECT_EQ(kxGetUPInt("app", "Key", 0), 2);
    EXPECT_EQ(kxGetUPInt("App", "key", 0), 3);
    EXPECT_EQ(kxGetUPInt("APP", "KEY", kDefault), kDefault);
}

TEST_F(ProfileValues, OfRepeatedKeysTheLastCountsAndIsReplaced)
{
    putProfile("[s]\nk=1\nother=7\nother=8\n[t]\nx=5\n[s]\nk=2\n");
    EXPECT_EQ(kxGetUPInt("s", "k", 0), 2);
    kxSetUPInt("s", "k", 3);
    EXPECT_EQ(kxGetUPInt("s", "k", 0), 3);
    EXPECT_EQ(kxGetUPInt("s", "other", 0), 8);
    EXPECT_EQ(profileText(), "[s]\nk = 3\nother = 7\nother = 8\n\n\n[t]\nx = 5\n");
}

TEST_F(ProfileValues, OddNamesAreStored)
{
    for (const char* section :
         {"", "a b", "[x", "[[", "a=b", ";x", "#", "\"q\"", "'", "\xe4\xff\x80", "a\tb", "=", "\\",
          "\xef\xbb\xbfx", "<<<", "first", "%d"})
        EXPECT_TRUE(isStored(section, "k")) << section;
    for (const char* key :
         {"a b", "a[", "]", "a]b", "a;b", "a#", "\"q\"", "\xe4\xff\x80", "a\tb", "<<<x", "%d"}) {
        EXPECT_TRUE(isStored("s", key)) << key;
        EXPECT_TRUE(isStored("", key)) << key;
    }
    EXPECT_TRUE(isStored(std::string(100000, 's'), std::string(100000, 'k')));
}

TEST_F(ProfileValues, NamesThatWouldReadAsOthersAreStoredToo)
{
    for (const char* section :
         {" s", "s ", "\ts", "s\t", " ", " \t ", "a]", "]", "a\nb", "a\n[first]\na=9", "\n", "a\rb",
          "a\x01", "\x7f", "\x1b[0m", "%5D", "100%25"})
        EXPECT_TRUE(isStored(section, "k")) << section;
    for (const char* key : {" k", "k ", "\tk", "k\t", "a=b", "=", "=k", "[k", "[k]", ";k", "#k",
                            "k\n", "a\n[first]\na", "a\rb", "\x02", "\xef\xbb\xbfk", "%3D"}) {
        EXPECT_TRUE(isStored("s", key)) << key;
        EXPECT_TRUE(isStored("", key)) << key;
    }
}

TEST_F(ProfileValues, ABadByteOfANameIsWrittenAsItsNumber)
{
    kxSetUPInt(" a]b%5D%", "[k=1]", 7);
    EXPECT_EQ(profileText(), "[%20a%5Db%255D%]\n%5Bk%3D1] = 7\n");
}

TEST_F(ProfileValues, NamesThatLookAlikeInTheFileAreKeptApart)
{
    kxSetUPInt("a]", "k", 1);
    kxSetUPInt("a%5D", "k", 2);
    kxSetUPInt("a", "=", 3);
    kxSetUPInt("a", "%3D", 4);
    EXPECT_EQ(kxGetUPInt("a]", "k", kDefault), 1);
    EXPECT_EQ(kxGetUPInt("a%5D", "k", kDefault), 2);
    EXPECT_EQ(kxGetUPInt("a", "=", kDefault), 3);
    EXPECT_EQ(kxGetUPInt("a", "%3D", kDefault), 4);
}

TEST_F(ProfileValues, KeyWithoutANameIsNone)
{
    EXPECT_FALSE(isStored("s", ""));
    EXPECT_EQ(profileText(), "top=0\n[first]\na=1\n[last]\nz=2\n");
}

// Names of random bytes, most of them those with a meaning in the file: each is stored, and no other
// setting is touched by it.
TEST_F(ProfileValues, RandomNamesAreStoredAndDamageNothing)
{
    constexpr int kNames = 400;
    constexpr std::string_view kBytes = "[]=;#%5D\n\r\t \"'\\<ab\xe4\xff\x01\x7f\xef\xbb\xbf";
    std::mt19937 random{20240229};
    const auto name = [&](std::size_t least) {
        std::string bytes(least + random() % 5, ' ');
        for (char& byte : bytes) byte = kBytes[random() % kBytes.size()];
        return bytes;
    };
    for (int i = 0; i < kNames; ++i) {
        const std::string section = name(0);
        const std::string key = name(1);
        EXPECT_TRUE(isStored(section, key)) << section << '/' << key;
    }
}

}  // namespace
