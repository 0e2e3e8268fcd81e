// profile_path_test.cpp: where the profile is looked for.

#include "host_test.h"

#include <pwd.h>
#include <unistd.h>

namespace {

std::string accountHome;  // the home directory of the user's account; none when empty

}  // namespace

// In place of the system's: kitehost finds this one first.
extern "C" passwd* getpwuid(uid_t user)
{
    static passwd account{};
    account.pw_uid = user;
    account.pw_dir = accountHome.data();
    return accountHome.empty() ? nullptr : &account;
}

namespace {

class ProfilePath : public HostTest {
protected:
    // Is a setting stored in this file and read from it?
    testing::AssertionResult isUsed(const std::string& path) const
    {
        static int value = 0;
        kxSetUPInt("a", "x", ++value);
        if (readFile(path) != "[a]\nx = " + std::to_string(value) + "\n")
            return testing::AssertionFailure() << "nothing in " << path;
        if (kxGetUPInt("a", "x", 0) != value) return testing::AssertionFailure() << "not read back";
        return testing::AssertionSuccess();
    }

    const Environment noChoice{"KITE_PROFILE", nullptr};
    const Environment home{"HOME", in("home").c_str()};
    const Environment configuration{"XDG_CONFIG_HOME", nullptr};
};

TEST_F(ProfilePath, InTheHomeDirectory)
{
    EXPECT_TRUE(isUsed(in("home/.config/kitegui/profile.ini")));
}

TEST_F(ProfilePath, InTheConfigurationDirectory)
{
    const Environment chosen{"XDG_CONFIG_HOME", in("xdg").c_str()};
    EXPECT_TRUE(isUsed(in("xdg/kitegui/profile.ini")));
    EXPECT_FALSE(exists(in("home")));
}

TEST_F(ProfilePath, EmptyOrRelativeConfigurationDirectoryCountsAsNone)
{
    for (const char* value : {"", "xdg", "./xdg"}) {
        const Environment chosen{"XDG_CONFIG_HOME", value};
        EXPECT_TRUE(isUsed(in("home/.config/kitegui/profile.ini"))) << value;
    }
}

TEST_F(ProfilePath, AsTheUserChooses)
{
    const Environment directories{"XDG_CONFIG_HOME", in("xdg").c_str()};
    const Environment chosen{"KITE_PROFILE", in("mine").c_str()};
    EXPECT_TRUE(isUsed(in("mine")));
    {
        const Environment none{"KITE_PROFILE", ""};
        EXPECT_TRUE(isUsed(in("xdg/kitegui/profile.ini")));
    }
    EXPECT_TRUE(isUsed(in("mine")));
}

TEST_F(ProfilePath, RelativeChoiceLiesInTheCurrentDirectory)
{
    EXPECT_TRUE(heldInChild([&] {
        ASSERT_EQ(chdir(directory.c_str()), 0);
        for (const char* path : {"p.ini", "./q.ini", "r/s.ini"}) {
            const Environment chosen{"KITE_PROFILE", path};
            EXPECT_TRUE(isUsed(in(path)));
        }
    }));
}

TEST_F(ProfilePath, WithoutHomeTheAccountsDirectoryCounts)
{
    accountHome = in("account");
    for (const char* value : {static_cast<const char*>(nullptr), "", "relative"}) {
        const Environment without{"HOME", value};
        EXPECT_TRUE(isUsed(in("account/.config/kitegui/profile.ini")));
    }
    accountHome.clear();
}

TEST_F(ProfilePath, WithoutAnyDirectoryNothingIsStored)
{
    const Environment without{"HOME", nullptr};
    EXPECT_TRUE(heldInChild([&] {
        ASSERT_EQ(chdir(directory.c_str()), 0);
        kxSetUPInt("a", "x", 1);
        EXPECT_EQ(kxGetUPInt("a", "x", 9), 9);
    }));
    EXPECT_TRUE(namesIn(directory).empty());
}

}  // namespace
