// The log of a running host, as the settings ask for it.

#include <filesystem>
#include <fstream>

#include "frame_checks.h"
#include "gui_test.h"

using namespace kite::testing;

namespace {

constexpr char kStart[] = ">>>LogStarted: T\n\n";
constexpr char kWhole[] = ">>>LogStarted: T\n\n>>>LogStopped: T\n";

std::string log(const std::string& path = "output.log")
{
    return withoutTimes(contentsOf(path));
}

void writeFile(const std::string& path, const std::string& text)
{
    std::ofstream{path} << text;
}

// The host runs as ever, and nothing is printed.
void expectSilence(const char* path)
{
    Profile& profile = HostDouble::instance().profile();
    profile.setInt("logfm", 1);
    profile.setString("logfn", path);
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(App::instance().run([] {}), 0);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

}  // namespace

GUI_STARTUP_TEST(OutputLog, IsNotWrittenWithoutTheSetting)
{
    app.run([] {});
    EXPECT_FALSE(std::filesystem::exists("output.log"));
}

GUI_STARTUP_TEST(OutputLog, IsNotWrittenForZero)
{
    host.profile().setInt("logfm", 0);
    app.run([] {});
    EXPECT_FALSE(std::filesystem::exists("output.log"));
}

GUI_STARTUP_TEST(OutputLog, IsNotWrittenForLess)
{
    host.profile().setInt("logfm", -1);
    app.run([] {});
    EXPECT_FALSE(std::filesystem::exists("output.log"));
}

GUI_STARTUP_TEST(OutputLog, BeginsWithInit)
{
    host.profile().setInt("logfm", 1);
    app.init();
    EXPECT_EQ(log(), kStart);
}

GUI_STARTUP_TEST(OutputLog, HasADefaultName)
{
    host.profile().setInt("logfm", 1);
    app.run([] { EXPECT_EQ(log(), kStart); });
    EXPECT_EQ(log(), kWhole);
}

GUI_STARTUP_TEST(OutputLog, HasTheNameOfTheSetting)
{
    host.profile().setInt("logfm", 1);
    host.profile().setString("logfn", "mine.txt");
    app.run([] {});
    EXPECT_EQ(log("mine.txt"), kWhole);
    EXPECT_FALSE(std::filesystem::exists("output.log"));
}

GUI_STARTUP_TEST(OutputLog, EmptyNameCountsAsAbsent)
{
    host.profile().setInt("logfm", 1);
    host.profile().setString("logfn", "");
    app.run([] {});
    EXPECT_EQ(log(), kWhole);
}

GUI_STARTUP_TEST(OutputLog, ModeOneBeginsAnew)
{
    host.profile().setInt("logfm", 1);
    writeFile("output.log", "old\n");
    app.run([] {});
    EXPECT_EQ(log(), kWhole);
}

GUI_STARTUP_TEST(OutputLog, ModeTwoContinues)
{
    host.profile().setInt("logfm", 2);
    writeFile("output.log", "old\n");
    app.run([] {});
    EXPECT_EQ(log(), "old\n\n>>>LogStarted: T\n\n>>>LogStopped: T\n");
}

GUI_STARTUP_TEST(OutputLog, EveryLargerModeContinues)
{
    host.profile().setInt("logfm", 1000);
    writeFile("output.log", "old\n");
    app.run([] {});
    EXPECT_EQ(log(), "old\n\n>>>LogStarted: T\n\n>>>LogStopped: T\n");
}

GUI_STARTUP_TEST(OutputLog, InADirectoryThatIsNotThereIsSilent)
{
    expectSilence("no/such/directory/a.log");
}

GUI_STARTUP_TEST(OutputLog, InPlaceOfADirectoryIsSilent)
{
    expectSilence("/");
}

GUI_STARTUP_TEST(OutputLog, OnAFullDiskIsSilent)
{
    expectSilence("/dev/full");
}

GUI_STARTUP_TEST(OutputLog, WhereNobodyMayWriteIsSilent)
{
    expectSilence("/proc/a.log");
}

GUI_STARTUP_TEST(OutputLog, NameOfAllTheRoomIsWhole)
{
    // 1023 bytes: directories of 200, and the rest is the name.
    std::string path;
    while (path.size() + 201 < 1000) path += std::string(200, 'd') + '/';
    std::filesystem::create_directories(path);
    path += std::string(1023 - path.size(), 'f');
    host.profile().setInt("logfm", 1);
    host.profile().setString("logfn", path);
    app.run([] {});
    EXPECT_EQ(log(path), kWhole);
}
