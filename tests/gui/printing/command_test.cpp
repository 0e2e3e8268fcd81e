// The command that prints a file.

#include <fstream>
#include <iterator>

#include "printing_support.h"

using namespace kite::testing;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

GUI_TEST(PrintCommand, IsTheDefaultOneUnlessTheUserHasAnother)
{
    EXPECT_EQ(printed("/tmp/a.txt"), "lp -c /tmp/a.txt");
    EXPECT_EQ(printed("/tmp/a.txt", 1), "lp -c -oeolwrap /tmp/a.txt");
    host.profile().setInt("landscape", 1);
    EXPECT_EQ(printed("/tmp/a.txt", 0), "lp -c -olandscape /tmp/a.txt");
    EXPECT_EQ(printed("/tmp/a.txt", 2), "lp -c -olandscape -oeolwrap /tmp/a.txt");
    EXPECT_EQ(printed("a 'b'", 3), "lp -c -olandscape a 'b'") << "as it stands";

    host.profile().setString("lpcmd", "a2ps %file -o out.ps");
    EXPECT_EQ(printed("/tmp/a.txt", 2), "a2ps /tmp/a.txt -o out.ps");
    host.profile().setString("lpcmd", "a2ps -1");
    EXPECT_EQ(printed("/tmp/a.txt", 2), "a2ps -1 /tmp/a.txt");
    host.profile().setString("lpcmd", "cp %file %file.copy");
    EXPECT_EQ(printed("%file"), "cp %file %file.copy") << "the first only, and once";
    EXPECT_THAT(host.profile().writes(), IsEmpty());
}

GUI_TEST(PrintCommand, HasTheUsersWords)
{
    // Is asked for each time.
    {
        using Kind = ProfileAccess::Kind;
        host.profile().clearAccesses();
        printed("file");
        EXPECT_THAT(host.profile().accesses("landscape"),
                    ElementsAre(ProfileAccess{Kind::ReadInt, "kite", "landscape", 0}));
        EXPECT_THAT(host.profile().accesses("lpcmd"),
                    ElementsAre(ProfileAccess{Kind::ReadString, "kite", "lpcmd", 1024}));
    }

    // Takes no notice of the other arguments.
    {
        EXPECT_EQ(guiPrintFile("file", 1, 2, 3, -4, 5, 6, 0), 0);
        EXPECT_EQ(guiPrintFile("file", -1, 99, INT_MAX, INT_MIN, 1, 1, -1), 0);
        EXPECT_THAT(host.commands(), Each(ExecCall{"lp -c file", 1, 1}));
        EXPECT_EQ(host.commands().size(), 3u);
    }

    // By a shell, as the host's own service runs it.
    {
        const std::string notes = host.appDir() / "notes";
        const std::string program = host.addFile(
            "print", "#!/bin/sh\nfor word; do echo \"<$word>\"; done > '" + notes + "'\nexit 3\n");
        host.profile().setString("lpcmd", "/bin/sh " + program + " -n 2 \"%file\" 'last word'");
        host.onExec([](const std::string& command) {
            Process shell{{"/bin/sh", "-c", command}};
            EXPECT_TRUE(waitUntil([&] { return !shell.isRunning(); }));
            return shell.exitStatus();
        });
        EXPECT_EQ(print("/tmp/a file"), 0);
        std::ifstream file{notes};
        const std::string words{std::istreambuf_iterator<char>{file}, {}};
        EXPECT_EQ(words, "<-n>\n<2>\n</tmp/a file>\n<last word>\n");
    }
}

GUI_TEST(PrintCommand, HasItsLimits)
{
    // Is at most2047 bytes long.
    {
        const std::string file(2047 - std::string{"lp -c "}.size(), 'f');
        EXPECT_EQ(printed(file.c_str()), "lp -c " + file);
        EXPECT_EQ(printed((file + 'f').c_str()), "");

        // A command has 1023, among which the place of the file must be.
        for (const bool fits : {true, false}) {
            const std::string before(fits ? 1018 : 1019, 'x');
            host.profile().setString("lpcmd", before + "%file%file");
            EXPECT_EQ(printed("f"), before + (fits ? "f" : "%fil f"));
        }
        host.profile().setString("lpcmd", std::string(1023, 'x'));
        EXPECT_EQ(printed(std::string(1023, 'f').c_str()),
                  std::string(1023, 'x') + ' ' + std::string(1023, 'f'));
        EXPECT_EQ(printed(std::string(1024, 'f').c_str()), "");
    }
}

// Without a box, a message or a second of waiting.
GUI_TEST(PrintCommand, IsNotMadeForNothing)
{
    guiTimer(100);
    EXPECT_EQ(print(nullptr), -1);
    EXPECT_EQ(print(""), -1);
    EXPECT_EQ(print(std::string(2042, 'f').c_str()), -1);
    host.profile().setString("lpcmd", "");
    EXPECT_EQ(print("file"), -1);
    EXPECT_THAT(host.commands(), IsEmpty());
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
    EXPECT_EQ(guiGetDefPrnPage(), -1);
}
