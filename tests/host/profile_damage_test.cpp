// profile_damage_test.cpp: profiles that cannot be read or make no sense.

#include "host_test.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

class ProfileDamage : public HostTest {
protected:
    // The text acts as an empty profile, stays as it is until a write, and is then kept beside.
    void expectDamaged(const std::string& text) const
    {
        std::filesystem::remove(profile + ".damaged");
        putProfile(text);
        EXPECT_EQ(kxGetUPInt("a", "x", 9), 9) << text;
        EXPECT_EQ(getStr("a", "x"), "(absent)") << text;
        EXPECT_EQ(profileText(), text);
        kxSetUPInt("a", "y", 2);
        EXPECT_EQ(readFile(profile + ".damaged"), text);
        EXPECT_EQ(profileText(), "[a]\ny = 2\n") << text;
    }

    // Nothing can be stored, and what lies there stays what it is.
    void expectUnusable() const
    {
        const std::vector<std::string> before = namesIn(directory);
        EXPECT_EQ(kxGetUPInt("a", "x", 9), 9);
        EXPECT_EQ(getStr("a", "x"), "(absent)");
        kxSetUPInt("a", "x", 2);
        EXPECT_EQ(kxGetUPInt("a", "x", 9), 9);
        EXPECT_EQ(namesIn(directory), before);
    }
};

TEST_F(ProfileDamage, LinesWithoutMeaning)
{
    for (const char* line :
         {"word", "[open", "[", "]", "=1", "  = 1", "[b] c", "[b] k=1", "[b=1", "<html>"}) {
        expectDamaged(std::string{"[a]\nx=1\n"} + line + "\n");
        expectDamaged(std::string{line} + "\n[a]\nx=1\n");
        expectDamaged(std::string{"[a]\nx=1\n"} + line);
        expectDamaged(std::string{"[a]\rx=1\r"} + line + "\r");
    }
}

TEST_F(ProfileDamage, BytesThatAreNoText)
{
    for (const char byte : {'\0', '\x01', '\x08', '\x0b', '\x1f', '\x7f'}) {
        expectDamaged(std::string{"[a]\nx=1\nz="} + byte + "\n");
        expectDamaged(std::string{"[a]\nx=1\n;"} + byte + "\n");
    }
    expectDamaged(std::string(4096, '\0'));
}

TEST_F(ProfileDamage, TooLarge)
{
    expectDamaged("[a]\nx=1\n;" + std::string(16 * 1024 * 1024, '.'));
}

TEST_F(ProfileDamage, SoundTextsAreNotDamaged)
{
    for (const char* text : {"", "\n", " \t\r\n", ";", "#\n", "[]", "[a]", "[a] ; note", "[a]#",
                             "k=", "[[]", "a]=b=[c"}) {
        putProfile(text);
        kxSetUPInt("a", "y", 2);
        EXPECT_EQ(kxGetUPInt("a", "y", 0), 2) << text;
        EXPECT_FALSE(exists(profile + ".damaged")) << text;
    }
}

TEST_F(ProfileDamage, EveryDamagedProfileIsKeptUnderItsOwnName)
{
    for (const char* text : {"first", "second", "third"}) {
        putProfile(text);
        kxSetUPInt("a", "x", 1);
        kxSetUPInt("a", "x", 2);
    }
    EXPECT_EQ(readFile(profile + ".damaged"), "first");
    EXPECT_EQ(readFile(profile + ".damaged.1"), "second");
    EXPECT_EQ(readFile(profile + ".damaged.2"), "third");
    EXPECT_EQ(profileText(), "[a]\nx = 2\n");
    EXPECT_EQ(namesIn(directory), (std::vector<std::string>{
                                      "profile.ini", "profile.ini.damaged", "profile.ini.damaged.1",
                                      "profile.ini.damaged.2", "profile.ini.lock"}));
}

TEST_F(ProfileDamage, WhatHasTheNameOfAKeptProfileIsNotOverwritten)
{
    std::filesystem::create_symlink("nowhere", profile + ".damaged");
    std::filesystem::create_directory(profile + ".damaged.1");
    putProfile("damaged");
    kxSetUPInt("a", "x", 1);
    EXPECT_TRUE(std::filesystem::is_symlink(profile + ".damaged"));
    EXPECT_TRUE(std::filesystem::is_directory(profile + ".damaged.1"));
    EXPECT_EQ(readFile(profile + ".damaged.2"), "damaged");
}

TEST_F(ProfileDamage, KeptProfileHasItsModeAndTheNewOneThatOfNewFiles)
{
    putProfile("damaged");
    chmod(profile.c_str(), 0644);
    kxSetUPInt("a", "x", 1);
    EXPECT_EQ(modeOf(profile + ".damaged"), 0644u);
    EXPECT_EQ(modeOf(profile), 0600u);
}

TEST_F(ProfileDamage, RefusedNameLeavesTheDamagedProfileInPlace)
{
    putProfile("damaged");
    kxSetUPInt("a", "", 1);
    EXPECT_EQ(namesIn(directory), std::vector<std::string>{"profile.ini"});
}

TEST_F(ProfileDamage, DirectoryInItsPlace)
{
    std::filesystem::create_directory(profile);
    expectUnusable();
    EXPECT_TRUE(std::filesystem::is_directory(profile));
}

TEST_F(ProfileDamage, PipeInItsPlaceIsNotWaitedFor)
{
    ASSERT_EQ(mkfifo(profile.c_str(), 0600), 0);
    expectUnusable();
    EXPECT_TRUE(std::filesystem::is_fifo(profile));
}

TEST_F(ProfileDamage, DeviceInItsPlace)
{
    const dev_t kNull = makedev(1, 3);
    if (mknod(profile.c_str(), S_IFCHR | 0666, kNull) != 0)
        GTEST_SKIP() << "only root can make devices";
    expectUnusable();
    EXPECT_TRUE(std::filesystem::is_character_file(profile));
}

TEST_F(ProfileDamage, LinksThatNeverEnd)
{
    std::filesystem::create_symlink("other", profile);
    std::filesystem::create_symlink("profile.ini", in("other"));
    expectUnusable();
    EXPECT_TRUE(std::filesystem::is_symlink(profile));
}

TEST_F(ProfileDamage, FileWherePathNeedsADirectory)
{
    writeFile(in("file"), "text");
    const Environment below{"KITE_PROFILE", in("file/profile.ini").c_str()};
    expectUnusable();
    EXPECT_EQ(readFile(in("file")), "text");
}

TEST_F(ProfileDamage, UnreadableProfileIsKeptBeside)
{
    chmod(directory.c_str(), 0777);
    EXPECT_TRUE(heldAsOrdinaryUser([&] {
        putProfile("[a]\nx=1\n");
        ASSERT_EQ(chmod(profile.c_str(), 0), 0);
        EXPECT_EQ(kxGetUPInt("a", "x", 9), 9);
        kxSetUPInt("a", "y", 2);
        EXPECT_EQ(kxGetUPInt("a", "y", 0), 2);
        EXPECT_EQ(modeOf(profile), 0600u);
        EXPECT_EQ(modeOf(profile + ".damaged"), 0u);
        ASSERT_EQ(chmod((profile + ".damaged").c_str(), 0600), 0);
        EXPECT_EQ(readFile(profile + ".damaged"), "[a]\nx=1\n");
    }));
}

TEST_F(ProfileDamage, UnreadableProfileOfAnotherUserIsKeptBeside)
{
    if (geteuid() != 0) GTEST_SKIP() << "needs two users";
    putProfile("[a]\nx=1\n");
    chmod(profile.c_str(), 0600);
    chmod(directory.c_str(), 0777);
    EXPECT_TRUE(heldAsOrdinaryUser([&] {
        kxSetUPInt("a", "y", 2);
        EXPECT_EQ(profileText(), "[a]\ny = 2\n");
    }));
    EXPECT_EQ(readFile(profile + ".damaged"), "[a]\nx=1\n");
}

TEST_F(ProfileDamage, DirectoryWithoutWritePermission)
{
    putProfile("[a]\nx=1\n");
    chmod(profile.c_str(), 0666);
    chmod(directory.c_str(), 0555);
    EXPECT_TRUE(heldAsOrdinaryUser([&] {
        kxSetUPInt("a", "x", 2);
        EXPECT_EQ(kxGetUPInt("a", "x", 9), 1);
    }));
    EXPECT_EQ(namesIn(directory), std::vector<std::string>{"profile.ini"});
    chmod(directory.c_str(), 0755);
}

TEST_F(ProfileDamage, DamagedProfileThatCannotBeKeptIsNotReplaced)
{
    // The longest name a file may have: there is no room for the lock, still less for a name
    // beside.
    const std::string name = in(std::string(255, 'n'));
    const Environment longest{"KITE_PROFILE", name.c_str()};
    writeFile(name, "damaged");
    kxSetUPInt("a", "x", 1);
    EXPECT_EQ(readFile(name), "damaged");
    // Room for the lock and the new file, but not for the name beside.
    const std::string shorter = in(std::string(250, 'n'));
    const Environment second{"KITE_PROFILE", shorter.c_str()};
    writeFile(shorter, "damaged");
    kxSetUPInt("a", "x", 1);
    EXPECT_EQ(readFile(shorter), "damaged");
    EXPECT_FALSE(exists(shorter + ".new"));
}

}  // namespace
