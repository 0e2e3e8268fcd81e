// profile_file_test.cpp: the file that a write makes: its mode, links, and what remains of a failed
// write.

#include "host_test.h"

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

using ProfileFile = HostTest;

ino_t inodeOf(const std::string& path)
{
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status.st_ino;
}

TEST_F(ProfileFile, MissingDirectoriesAndFilesAreForTheirOwnerOnly)
{
    const Environment deep{"KITE_PROFILE", in("one/two/profile.ini").c_str()};
    kxSetUPInt("a", "x", 1);
    EXPECT_EQ(readFile(in("one/two/profile.ini")), "[a]\nx = 1\n");
    EXPECT_EQ(modeOf(in("one")), 0700u);
    EXPECT_EQ(modeOf(in("one/two")), 0700u);
    EXPECT_EQ(modeOf(in("one/two/profile.ini")), 0600u);
    EXPECT_EQ(modeOf(in("one/two/profile.ini.lock")), 0600u);
}

TEST_F(ProfileFile, ReadingCreatesNothing)
{
    const Environment deep{"KITE_PROFILE", in("one/profile.ini").c_str()};
    EXPECT_EQ(kxGetUPInt("a", "x", 5), 5);
    EXPECT_EQ(getStr("a", "x"), "(absent)");
    EXPECT_TRUE(namesIn(directory).empty());
}

TEST_F(ProfileFile, ModeOfAnExistingFileStays)
{
    for (const mode_t mode : {0600u, 0640u, 0644u, 0666u}) {
        putProfile("[a]\nx=1\n");
        ASSERT_EQ(chmod(profile.c_str(), mode), 0);
        kxSetUPInt("a", "x", 2);
        EXPECT_EQ(modeOf(profile), mode);
        EXPECT_EQ(kxGetUPInt("a", "x", 0), 2);
    }
}

TEST_F(ProfileFile, OwnerStaysWhenRootWrites)
{
    if (geteuid() != 0) GTEST_SKIP() << "only root can give files away";
    putProfile("[a]\nx=1\n");
    ASSERT_EQ(chown(profile.c_str(), 1234, 2345), 0);
    ASSERT_EQ(chmod(profile.c_str(), 0640), 0);
    kxSetUPInt("a", "x", 2);
    struct stat status {};
    ASSERT_EQ(stat(profile.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 1234u);
    EXPECT_EQ(status.st_gid, 2345u);
    EXPECT_EQ(modeOf(profile), 0640u);
}

TEST_F(ProfileFile, ProfileOfAnotherUserIsReplacedByOnesOwn)
{
    if (geteuid() != 0) GTEST_SKIP() << "needs two users";
    putProfile("[a]\nx=1\n");
    chmod(profile.c_str(), 0666);
    chmod(directory.c_str(), 0777);
    EXPECT_TRUE(heldAsOrdinaryUser([&] {
        kxSetUPInt("a", "x", 2);
        EXPECT_EQ(kxGetUPInt("a", "x", 0), 2);
        EXPECT_EQ(modeOf(profile), 0666u);
    }));
}

TEST_F(ProfileFile, ReadOnlyProfileIsLeftAlone)
{
    chmod(directory.c_str(), 0777);
    EXPECT_TRUE(heldAsOrdinaryUser([&] {
        putProfile("[a]\nx=1\n");
        ASSERT_EQ(chmod(profile.c_str(), 0400), 0);
        kxSetUPInt("a", "x", 2);
        EXPECT_EQ(profileText(), "[a]\nx=1\n");
        EXPECT_EQ(modeOf(profile), 0400u);
        EXPECT_FALSE(exists(profile + ".new"));
    }));
}

TEST_F(ProfileFile, StoredValueIsNotWrittenAgain)
{
    putProfile("[a]\nx = 007\n");
    const ino_t before = inodeOf(profile);
    kxSetUPInt("a", "x", 7);
    EXPECT_EQ(inodeOf(profile), before);
    EXPECT_EQ(profileText(), "[a]\nx = 007\n");
    EXPECT_EQ(namesIn(directory), std::vector<std::string>{"profile.ini"});
    kxSetUPInt("a", "x", 8);
    EXPECT_NE(inodeOf(profile), before);
}

TEST_F(ProfileFile, WriteReplacesTheFileInsteadOfChangingIt)
{
    putProfile("[a]\nx=1\n");
    const int old = open(profile.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_GE(old, 0);
    kxSetUPInt("a", "x", 2);
    char text[32] = "";
    EXPECT_EQ(read(old, text, sizeof text), 8);
    EXPECT_STREQ(text, "[a]\nx=1\n");
    close(old);
}

TEST_F(ProfileFile, OnlyTheLockStaysBeside)
{
    kxSetUPInt("a", "x", 1);
    const ino_t lock = inodeOf(profile + ".lock");
    kxSetUPInt("a", "x", 2);
    EXPECT_EQ(inodeOf(profile + ".lock"), lock);
    EXPECT_EQ(namesIn(directory), (std::vector<std::string>{"profile.ini", "profile.ini.lock"}));
}

TEST_F(ProfileFile, LinkedProfileIsReplacedBehindTheLinks)
{
    fs::create_directory(in("real"));
    writeFile(in("real/p"), "[a]\nx=1\n");
    fs::create_symlink("../two", in("real/one"));
    fs::create_symlink(in("real/p"), in("two"));
    fs::create_symlink("real/one", profile);
    kxSetUPInt("a", "x", 2);
    EXPECT_EQ(readFile(in("real/p")), "[a]\nx = 2\n");
    EXPECT_FALSE(fs::is_symlink(in("real/p")));
    for (const char* link : {"profile.ini", "two", "real/one"})
        EXPECT_TRUE(fs::is_symlink(in(link))) << link;
    EXPECT_EQ(kxGetUPInt("a", "x", 0), 2);
}

TEST_F(ProfileFile, DanglingLinkGetsItsTarget)
{
    fs::create_symlink("new/p.ini", profile);
    EXPECT_EQ(kxGetUPInt("a", "x", 9), 9);
    kxSetUPInt("a", "x", 2);
    EXPECT_TRUE(fs::is_symlink(profile));
    EXPECT_EQ(readFile(in("new/p.ini")), "[a]\nx = 2\n");
    EXPECT_EQ(kxGetUPInt("a", "x", 9), 2);
}

TEST_F(ProfileFile, LeftoverOfAKilledHostIsNoHindrance)
{
    writeFile(profile + ".new", "[a]\nx = ");
    writeFile(in("victim"), "untouched");
    kxSetUPInt("a", "x", 1);
    EXPECT_EQ(profileText(), "[a]\nx = 1\n");
    fs::create_symlink("victim", profile + ".new");
    kxSetUPInt("a", "x", 2);
    EXPECT_EQ(profileText(), "[a]\nx = 2\n");
    EXPECT_EQ(readFile(in("victim")), "untouched");
    EXPECT_EQ(namesIn(directory),
              (std::vector<std::string>{"profile.ini", "profile.ini.lock", "victim"}));
}

TEST_F(ProfileFile, FullDiskLeavesTheOldProfile)
{
    for (const std::string& text :
         {std::string{"[a]\nx=1\nlong="} + std::string(8000, 'v') + "\n", std::string{"damaged"}}) {
        putProfile(text);
        EXPECT_TRUE(heldInChild([&] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{5, 5};
            ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
            kxSetUPInt("a", "x", 2);
        }));
        EXPECT_EQ(profileText(), text);
        EXPECT_EQ(namesIn(directory),
                  (std::vector<std::string>{"profile.ini", "profile.ini.lock"}));
    }
}

TEST_F(ProfileFile, WithoutFreeDescriptorsNothingHappens)
{
    putProfile("[a]\nx=1\n");
    EXPECT_TRUE(heldInChild([&] {
        // One descriptor left: enough for the lock, but the profile cannot be read. It is not
        // damaged!
        const int last = open("/dev/null", O_RDONLY | O_CLOEXEC);
        close(last);
        for (const int left : {1, 0}) {
            const rlimit limit{static_cast<rlim_t>(last + left), static_cast<rlim_t>(last + 1)};
            ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
            kxSetUPInt("a", "x", 2);
            EXPECT_EQ(kxGetUPInt("a", "x", 9), left ? 1 : 9);
        }
    }));
    EXPECT_EQ(profileText(), "[a]\nx=1\n");
    EXPECT_EQ(namesIn(directory), (std::vector<std::string>{"profile.ini", "profile.ini.lock"}));
}

TEST_F(ProfileFile, NoDescriptorIsLeftOpen)
{
    const auto firstFree = [] {
        const int number = open("/dev/null", O_RDONLY | O_CLOEXEC);
        close(number);
        return number;
    };
    const int before = firstFree();
    for (int i = 0; i < 20; ++i) kxSetUPInt("a", "x", i);
    kxGetUPInt("a", "x", 0);
    EXPECT_EQ(firstFree(), before);
}

}  // namespace
