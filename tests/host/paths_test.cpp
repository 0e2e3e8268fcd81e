// paths_test.cpp: the application directory and full names.

#include "host_test.h"

#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

class Paths : public HostTest {
protected:
    // The full name, with the test's own directory as the current one.
    std::string fullNameOf(const char* path) const
    {
        const fs::path before = fs::current_path();
        fs::current_path(directory);
        const std::string full = kxFullName(path);
        fs::current_path(before);
        return full;
    }
};

TEST_F(Paths, AbsoluteNamesAreNormalised)
{
    const std::pair<const char*, const char*> cases[] = {{"/", "/"},
                                                         {"//", "/"},
                                                         {"///a", "/a"},
                                                         {"/a/b", "/a/b"},
                                                         {"/a/b/", "/a/b/"},
                                                         {"/a//b///", "/a/b/"},
                                                         {"/./a/./b", "/a/b"},
                                                         {"/a/.", "/a/"},
                                                         {"/a/..", "/"},
                                                         {"/a/b/..", "/a/"},
                                                         {"/a/../b", "/b"},
                                                         {"/..", "/"},
                                                         {"/../../a", "/a"},
                                                         {"/a/.b", "/a/.b"},
                                                         {"/a/..b", "/a/..b"},
                                                         {"/a/...", "/a/..."},
                                                         {"/a/b/../../c/", "/c/"},
                                                         {"/a b/\xe4", "/a b/\xe4"},
                                                         {"/.", "/"}};
    for (const auto& [path, full] : cases) EXPECT_STREQ(kxFullName(path), full) << path;
}

TEST_F(Paths, RelativeNamesStartInTheCurrentDirectory)
{
    EXPECT_EQ(fullNameOf("a"), in("a"));
    EXPECT_EQ(fullNameOf("./a"), in("a"));
    EXPECT_EQ(fullNameOf("a/"), in("a/"));
    EXPECT_EQ(fullNameOf("a/../b"), in("b"));
    EXPECT_EQ(fullNameOf("."), directory + "/");
    EXPECT_EQ(fullNameOf(".."), fs::path{directory}.parent_path().string() + "/");
    EXPECT_EQ(fullNameOf("../a"), (fs::path{directory}.parent_path() / "a").string());
    EXPECT_EQ(fullNameOf("~"), in("~"));
}

TEST_F(Paths, EmptyNameIsTheCurrentDirectory)
{
    EXPECT_EQ(fullNameOf(""), directory + "/");
    EXPECT_EQ(fullNameOf(nullptr), directory + "/");
    const fs::path before = fs::current_path();
    fs::current_path("/");
    EXPECT_STREQ(kxFullName(""), "/");
    EXPECT_STREQ(kxFullName("a"), "/a");
    fs::current_path(before);
}

TEST_F(Paths, LinksStayExceptBeforeTheParent)
{
    fs::create_directories(in("far/away/sub"));
    fs::create_symlink("far/away", in("link"));
    EXPECT_EQ(fullNameOf("link/file"), in("link/file"));
    EXPECT_EQ(fullNameOf("link/./sub/../file"), in("link/file"));
    EXPECT_EQ(fullNameOf("link/../file"), in("far/file"));  // as the system would find it
    EXPECT_EQ(fullNameOf("link/.."), in("far/"));
    fs::create_symlink("nowhere", in("dangling"));
    EXPECT_EQ(fullNameOf("dangling/../file"), in("file"));
    writeFile(in("far/file"), "found");
    EXPECT_EQ(readFile(in("link/../file")), "found");
    EXPECT_EQ(readFile(fullNameOf("link/../file")), "found");
}

TEST_F(Paths, NamesOfAnyLength)
{
    const std::string name = "/" + std::string(300000, 'n') + "/x";
    EXPECT_EQ(kxFullName(name.c_str()), name);
    std::string ups = "/a";
    for (int i = 0; i < 20000; ++i) ups += "/b/..";
    EXPECT_STREQ(kxFullName(ups.c_str()), "/a/");
    EXPECT_EQ(fullNameOf(name.c_str() + 1), directory + name);
}

TEST_F(Paths, CurrentDirectoryDeeperThanAPathMayBe)
{
    EXPECT_TRUE(heldInChild([&] {
        ASSERT_EQ(chdir(directory.c_str()), 0);
        std::string deep = directory;
        const std::string step(200, 'd');
        while (deep.size() < 6000) {
            ASSERT_EQ(mkdir(step.c_str(), 0700), 0);
            ASSERT_EQ(chdir(step.c_str()), 0);
            deep += "/" + step;
        }
        EXPECT_EQ(kxFullName("x"), deep + "/x");
    }));
}

TEST_F(Paths, WithoutCurrentDirectoryTheNameStaysAsItIs)
{
    fs::create_directory(in("gone"));
    EXPECT_TRUE(heldInChild([&] {
        ASSERT_EQ(chdir(in("gone").c_str()), 0);
        ASSERT_EQ(rmdir(in("gone").c_str()), 0);
        EXPECT_STREQ(kxFullName("a/../b"), "a/../b");
        EXPECT_STREQ(kxFullName(""), "");
        EXPECT_STREQ(kxFullName(nullptr), "");
        EXPECT_STREQ(kxFullName("/a/../b"), "/b");
    }));
}

TEST_F(Paths, ResultMayBeTheNextArgument)
{
    const char* const first = kxFullName("/a/./b/");
    EXPECT_STREQ(kxFullName(first), "/a/b/");
}

TEST_F(Paths, FileNameBeginsBehindTheLastSeparator)
{
    const std::pair<const char*, int> cases[] = {
        {"", 0},    {"a", 0},      {"/", 1},     {"/a", 1},   {"a/", 2},
        {"a/b", 2}, {"/a/b.c", 3}, {"/a/b/", 5}, {"a\\b", 0}, {"//", 2}};
    for (const auto& [path, position] : cases) EXPECT_EQ(kxLocNamePos(path), position) << path;
    EXPECT_EQ(kxLocNamePos(nullptr), 0);
    EXPECT_EQ(kxLocNamePos((std::string(100000, 'a') + "/b").c_str()), 100001);
}

TEST_F(Paths, CurrentDirectoryIsAllDirectory)
{
    const std::string full = fullNameOf("");
    EXPECT_EQ(kxLocNamePos(full.c_str()), static_cast<int>(full.size()));
}

// The application directory is found once in a process: each case has its own.
TEST_F(Paths, ApplicationDirectoryIsThatOfTheProgram)
{
    const std::string expected = fs::read_symlink("/proc/self/exe").parent_path().string() + "/";
    for (const char* chosen : {static_cast<const char*>(nullptr), ""})
        EXPECT_TRUE(heldInChild([&] {
            const Environment environment{"KITE_APP_DIR", chosen};
            ASSERT_EQ(chdir("/"), 0);
            EXPECT_EQ(kxAppDir(), expected);
        }));
}

TEST_F(Paths, ApplicationDirectoryAsTheUserChooses)
{
    const std::pair<std::string, std::string> cases[] = {{"/", "/"},
                                                         {"/opt/my host", "/opt/my host/"},
                                                         {"/opt/x/", "/opt/x/"},
                                                         {"sub", in("sub/")},
                                                         {".", directory + "/"}};
    for (const auto& [chosen, expected] : cases)
        EXPECT_TRUE(heldInChild([&, &directoryChosen = chosen, &result = expected] {
            ASSERT_EQ(chdir(directory.c_str()), 0);
            const Environment environment{"KITE_APP_DIR", directoryChosen.c_str()};
            EXPECT_EQ(kxAppDir(), result);
        }));
}

TEST_F(Paths, ApplicationDirectoryStays)
{
    EXPECT_TRUE(heldInChild([&] {
        ASSERT_EQ(chdir(directory.c_str()), 0);
        const char* const first = [] {
            const Environment environment{"KITE_APP_DIR", "here"};
            return kxAppDir();
        }();
        ASSERT_EQ(chdir("/"), 0);
        const Environment other{"KITE_APP_DIR", "/elsewhere"};
        EXPECT_EQ(kxAppDir(), first);
        EXPECT_EQ(first, in("here/"));
    }));
}

}  // namespace
