// host_test.cpp: the host services of the tests.

#include "gui_test.h"

#include <filesystem>
#include <fstream>

using namespace kite::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using Kind = ProfileAccess::Kind;

GUI_STARTUP_TEST(HostDouble, ConfiguresTheLibraryBeforeItsStart)
{
    host.profile().setInt("mwndx", 100);
    host.profile().setInt("mwndy", 120);
    host.profile().setInt("mwndw", 500);
    host.profile().setInt("mwndh", 400);
    app.run([&] { EXPECT_EQ(resource<Dimension>(app.shell(), XmNwidth), 500); });
    EXPECT_THAT(host.profile().accesses(),
                Contains(ProfileAccess{Kind::ReadInt, "kite", "mwndw", -1}));
    EXPECT_THAT(host.profile().writes(),
                Contains(ProfileAccess{Kind::WriteInt, "kite", "mwndw", 500}));
    EXPECT_EQ(host.profile().intOf("mwndw"), 500);
}

GUI_STARTUP_TEST(HostDouble, KeepsSectionsApart)
{
    host.profile().setInt("key", 1);
    host.profile().setInt("key", 2, "special");
    EXPECT_EQ(kxGetUPInt("special", "key", 9), 2);
    EXPECT_EQ(kxGetUPInt("kite", "key", 9), 1);
    EXPECT_EQ(kxGetUPInt("kite", "other", 9), 9);
}

GUI_STARTUP_TEST(HostDouble, CutsStringsToTheBuffer)
{
    char buffer[5] = "old";
    kxGetUPStr("kite", "name", buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "old");
    host.profile().setString("name", "a long one");
    kxGetUPStr("kite", "name", buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "a lo");
}

GUI_STARTUP_TEST(HostDouble, HasAnApplicationDirectory)
{
    host.addFile("images/icon.bmp", "bits");
    std::ifstream file{std::string{kxAppDir()} + "images/icon.bmp"};
    std::string contents;
    file >> contents;
    EXPECT_EQ(contents, "bits");
}

GUI_STARTUP_TEST(HostDouble, RecordsCommands)
{
    host.setExecResult(-1);
    EXPECT_EQ(kxExec("lp -c file", 1, 1), -1);
    EXPECT_THAT(host.commands(), ElementsAre(ExecCall{"lp -c file", 1, 1}));
}

GUI_STARTUP_TEST(HostDouble, TakesPathsApart)
{
    EXPECT_EQ(kxLocNamePos("/usr/lib/name"), 9);
    EXPECT_EQ(kxLocNamePos("name"), 0);
    EXPECT_EQ(kxFullName("some/../name"), std::filesystem::current_path().string() + "/name");
}
