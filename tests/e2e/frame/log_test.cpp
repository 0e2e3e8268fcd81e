// The log of a real host, however the host ends.

#include <signal.h>

#include <filesystem>

#include "gui_test.h"
#include "host_process.h"

using namespace kite::testing;

namespace {

void logInto(const HostFiles& files, int mode, const std::string& path)
{
    files.setProfile("logfm = " + std::to_string(mode) + "\nlogfn = " + path + "\n");
}

void logInto(const HostFiles& files, int mode)
{
    logInto(files, mode, files.path("output.log"));
}

// A log that cannot be written is the host's business as little as the user's.
void expectSilence(const HostFiles& files, const std::string& path)
{
    logInto(files, 1, path);
    HostProcess program{files};
    ASSERT_TRUE(program.closeAndWait());
    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_EQ(program.output(), "");
}

}  // namespace

// One stop line when the frame closes, and one when the library is unloaded.
GUI_STARTUP_TEST(HostLog, EndsWithTwoStopLines)
{
    const HostFiles files;
    logInto(files, 1);
    HostProcess program{files};
    wm::close(program.window());
    ASSERT_TRUE(program.wait());
    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_EQ(program.output(), "");
    EXPECT_EQ(files.log(), ">>>LogStarted: T\n\n>>>LogStopped: T\n>>>LogStopped: T\n");
}

GUI_STARTUP_TEST(HostLog, OfAHostThatLeavesItsFrameOpenIsStoppedOnce)
{
    const HostFiles files;
    logInto(files, 1);
    HostProcess program{files, {"exit"}};
    ASSERT_TRUE(program.wait());
    EXPECT_EQ(program.exitStatus(), 3);
    EXPECT_EQ(files.log(), ">>>LogStarted: T\n\n>>>LogStopped: T\n");
}

GUI_STARTUP_TEST(HostLog, OfAKilledHostHasItsBeginning)
{
    const HostFiles files;
    logInto(files, 1);
    HostProcess program{files};
    ASSERT_TRUE(program.window());
    program.send(SIGKILL);
    ASSERT_TRUE(program.wait());
    EXPECT_EQ(files.log(), ">>>LogStarted: T\n\n");
}

GUI_STARTUP_TEST(HostLog, GoesOnAfterAKill)
{
    const HostFiles files;
    logInto(files, 2);
    HostProcess killed{files};
    ASSERT_TRUE(killed.window());
    killed.send(SIGKILL);
    ASSERT_TRUE(killed.wait());
    HostProcess next{files};
    ASSERT_TRUE(next.closeAndWait());
    EXPECT_EQ(files.log(), ">>>LogStarted: T\n\n\n>>>LogStarted: T\n\n"
                           ">>>LogStopped: T\n>>>LogStopped: T\n");
}

GUI_STARTUP_TEST(HostLog, HasEveryLineThatWasWrittenBeforeAKill)
{
    const HostFiles files;
    const std::string name = files.path("own.log");
    HostProcess program{files, {"log", "1000", name}};
    ASSERT_TRUE(pumpUntil([&] { return program.output() == "written\n"; }));
    program.send(SIGKILL);
    ASSERT_TRUE(program.wait());
    std::string expected = ">>>LogStarted: T\n\n";
    for (int i = 1; i <= 1000; ++i) expected += "line " + std::to_string(i) + '\n';
    EXPECT_EQ(files.log("own.log"), expected);
}

GUI_STARTUP_TEST(HostLog, OfModeOneBeginsAnewInEachRun)
{
    const HostFiles files;
    logInto(files, 1);
    for (int run = 0; run < 2; ++run) {
        HostProcess program{files};
        ASSERT_TRUE(program.closeAndWait());
        EXPECT_EQ(files.log(), ">>>LogStarted: T\n\n>>>LogStopped: T\n>>>LogStopped: T\n");
    }
}

GUI_STARTUP_TEST(HostLog, OnAFullDiskIsSilent)
{
    expectSilence(HostFiles{}, "/dev/full");
}

GUI_STARTUP_TEST(HostLog, InADirectoryThatIsNotThereIsSilent)
{
    const HostFiles files;
    expectSilence(files, files.path("missing/output.log"));
}

// The next write tries again: here the stop line.
GUI_STARTUP_TEST(HostLog, InADirectoryThatComesLaterHasItsEnd)
{
    const HostFiles files;
    logInto(files, 1, files.path("later/output.log"));
    HostProcess program{files};
    ASSERT_TRUE(program.window());
    std::filesystem::create_directory(files.path("later"));
    ASSERT_TRUE(program.closeAndWait());
    EXPECT_TRUE(files.log("later/output.log").ends_with(">>>LogStopped: T\n"));
}
