#include <gmock/gmock.h>
#include <kitegui.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <regex>
#include <sstream>
#include <string>

#include "frame/log_file.h"

namespace {

namespace fs = std::filesystem;
using ::testing::Test;

// Start and stop lines with the date and time replaced, so that a log compares as a whole.
std::string withoutTimes(const std::string& text)
{
    static const std::regex stamp{R"(: \d{4}\.\d{2}\.\d{2} \d{2}:\d{2}:\d{2}\n)"};
    return std::regex_replace(text, stamp, ": T\n");
}

constexpr char kStart[] = ">>>LogStarted: T\n\n";
constexpr char kStop[] = ">>>LogStopped: T\n";

class LogFileTest : public Test {
protected:
    LogFileTest() : directory_(makeDirectory()) {}
    ~LogFileTest() override { fs::remove_all(directory_); }

    std::string path(const char* name = "a.log") const { return directory_ / name; }

    static std::string read(const std::string& path)
    {
        std::ifstream file{path};
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }

    std::string log(const char* name = "a.log") const { return withoutTimes(read(path(name))); }

    void put(const std::string& text, const char* name = "a.log") const
    {
        std::ofstream{path(name)} << text;
    }

private:
    static fs::path makeDirectory()
    {
        std::string name = fs::temp_directory_path() / "kitegui-log-XXXXXX";
        return mkdtemp(name.data());
    }

    fs::path directory_;
};

}  // namespace

TEST_F(LogFileTest, StartsWithItsLineAndAnEmptyOne)
{
    LogFile log;
    log.start(path().c_str(), 1);
    EXPECT_EQ(this->log(), kStart);
}

TEST_F(LogFileTest, StampIsTheLocalTimeWithLeadingZeros)
{
    setenv("TZ", "XXX-05:30", 1);
    tzset();
    LogFile log;
    const std::time_t before = std::time(nullptr);
    log.start(path().c_str(), 1);
    const std::time_t after = std::time(nullptr);
    const auto stamp = [](std::time_t time) {
        char text[64];
        std::strftime(text, sizeof text, ">>>LogStarted: %Y.%m.%d %H:%M:%S\n\n",
                      std::localtime(&time));
        return std::string{text};
    };
    EXPECT_THAT(read(path()), ::testing::AnyOf(stamp(before), stamp(after)));
}

TEST_F(LogFileTest, TruncatesOrContinues)
{
    put("old\n");
    LogFile log;
    log.start(path().c_str(), 0);
    EXPECT_EQ(this->log(), std::string{"old\n\n"} + kStart);
    LogFile other;
    other.start(path().c_str(), 7);
    EXPECT_EQ(this->log(), kStart);
}

TEST_F(LogFileTest, ContinuesAnEmptyFileWithoutAGap)
{
    put("");
    LogFile log;
    log.start(path().c_str(), 0);
    EXPECT_EQ(this->log(), kStart);
}

TEST_F(LogFileTest, WritesLinesAndTexts)
{
    LogFile log;
    log.start(path().c_str(), 1);
    log.write("one", 1);
    log.write("two", 0);
    log.write("", 0);
    log.write("three\nfour", 1);
    log.write("", 5);
    EXPECT_EQ(this->log(), std::string{kStart} + "one\ntwothree\nfour\n\n");
}

TEST_F(LogFileTest, StopFollowsAnEmptyLineAfterALine)
{
    LogFile log;
    log.start(path().c_str(), 1);
    log.write("line", 1);
    log.stop();
    EXPECT_EQ(this->log(), std::string{kStart} + "line\n\n" + kStop);
}

TEST_F(LogFileTest, StopNeedsNoSecondEmptyLine)
{
    LogFile log;
    log.start(path().c_str(), 1);
    log.write("line", 1);
    log.write("", 1);
    log.stop();
    EXPECT_EQ(this->log(), std::string{kStart} + "line\n\n" + kStop);
}

TEST_F(LogFileTest, StopRightAfterStart)
{
    LogFile log;
    log.start(path().c_str(), 1);
    log.stop();
    EXPECT_EQ(this->log(), std::string{kStart} + kStop);
}

TEST_F(LogFileTest, StopContinuesTheLineOfATextRightAfterStart)
{
    LogFile log;
    log.start(path().c_str(), 1);
    log.write("text", 0);
    log.stop();
    EXPECT_EQ(this->log(), std::string{kStart} + "text" + kStop);
}

TEST_F(LogFileTest, TextKeepsTheFlagOfTheLineBefore)
{
    LogFile log;
    log.start(path().c_str(), 1);
    log.write("line", 1);
    log.write("text", 0);
    log.stop();
    EXPECT_EQ(this->log(), std::string{kStart} + "line\ntext\n" + kStop);
}

TEST_F(LogFileTest, StopTwiceWritesTwoLines)
{
    LogFile log;
    log.start(path().c_str(), 1);
    log.write("line", 1);
    log.stop();
    log.stop();
    EXPECT_EQ(this->log(), std::string{kStart} + "line\n\n" + kStop + "\n" + kStop);
}

TEST_F(LogFileTest, WritesAfterStopAreLogged)
{
    LogFile log;
    log.start(path().c_str(), 1);
    log.stop();
    log.write("late", 1);
    EXPECT_EQ(this->log(), std::string{kStart} + kStop + "late\n");
}

TEST_F(LogFileTest, SecondStartStopsThePreviousFile)
{
    LogFile log;
    log.start(path("a.log").c_str(), 1);
    log.write("line", 1);
    log.start(path("b.log").c_str(), 1);
    EXPECT_EQ(this->log("a.log"), std::string{kStart} + "line\n\n" + kStop);
    EXPECT_EQ(this->log("b.log"), kStart);
}

TEST_F(LogFileTest, StartAfterStopWritesNoSecondStopLine)
{
    LogFile log;
    log.start(path("a.log").c_str(), 1);
    log.stop();
    log.start(path("b.log").c_str(), 1);
    EXPECT_EQ(this->log("a.log"), std::string{kStart} + kStop);
}

TEST_F(LogFileTest, StartAfterALateWriteStopsAgain)
{
    LogFile log;
    log.start(path("a.log").c_str(), 1);
    log.stop();
    log.write("late", 1);
    log.start(path("b.log").c_str(), 1);
    EXPECT_EQ(this->log("a.log"), std::string{kStart} + kStop + "late\n\n" + kStop);
}

TEST_F(LogFileTest, StartOnTheSameFileStopsItFirst)
{
    LogFile log;
    log.start(path().c_str(), 1);
    log.start(path().c_str(), 0);
    EXPECT_EQ(this->log(), std::string{kStart} + kStop + "\n" + kStart);
}

TEST_F(LogFileTest, StartWithoutAPathOnlyStops)
{
    LogFile log;
    log.start(path().c_str(), 1);
    log.start("", 1);
    EXPECT_EQ(this->log(), std::string{kStart} + kStop);
    log.start(nullptr, 1);
    log.write("kept", 1);
    EXPECT_EQ(this->log(), std::string{kStart} + kStop + "kept\n");
}

TEST_F(LogFileTest, KeepsACopyOfThePath)
{
    LogFile log;
    std::string name = path();
    log.start(name.c_str(), 1);
    name.assign(name.size(), 'x');
    log.write("line", 1);
    EXPECT_EQ(this->log(), std::string{kStart} + "line\n");
}

TEST_F(LogFileTest, WithoutAStartNothingHappens)
{
    LogFile log;
    log.write("line", 1);
    log.stop();
    log.start(nullptr, 0);
    log.start("", 0);
    log.write("line", 1);
    EXPECT_TRUE(fs::is_empty(fs::path{path()}.parent_path()));
}

TEST_F(LogFileTest, NullTextWritesNothing)
{
    LogFile log;
    log.start(path().c_str(), 1);
    log.write(nullptr, 1);
    log.write(nullptr, 0);
    EXPECT_EQ(this->log(), kStart);
}

TEST_F(LogFileTest, DestructorStops)
{
    {
        LogFile log;
        log.start(path().c_str(), 1);
    }
    EXPECT_EQ(this->log(), std::string{kStart} + kStop);
}

TEST_F(LogFileTest, BytesAndLengthAreUnchanged)
{
    std::string text;
    for (int round = 0; round < 5000; ++round)
        for (int byte = 1; byte < 256; ++byte) text.push_back(static_cast<char>(byte));
    LogFile log;
    log.start(path().c_str(), 1);
    log.write(text.c_str(), 1);
    EXPECT_EQ(this->log(), std::string{kStart} + text + "\n");
}

TEST_F(LogFileTest, DirectoryThatComesLaterIsTriedAgain)
{
    const std::string late = path("late");
    LogFile log;
    log.start((late + "/a.log").c_str(), 1);
    log.write("lost", 1);
    fs::create_directory(late);
    log.write("kept", 1);
    EXPECT_EQ(this->log("late/a.log"), "kept\n");
}

TEST_F(LogFileTest, FailedStartLeavesNothingToStop)
{
    LogFile log;
    log.start((path("missing") + "/a.log").c_str(), 1);
    fs::create_directory(path("missing"));
    log.start(path("b.log").c_str(), 1);
    EXPECT_FALSE(fs::exists(path("missing/a.log")));
}

TEST_F(LogFileTest, DirectoryInTheFilesPlaceIsSilent)
{
    LogFile log;
    log.start(fs::path{path()}.parent_path().c_str(), 1);
    log.write("lost", 1);
    log.stop();
    EXPECT_TRUE(fs::is_empty(fs::path{path()}.parent_path()));
}

// As an ordinary user: root may write everywhere.
TEST_F(LogFileTest, DirectoryThatCannotBeWrittenIsSilent)
{
    const fs::path directory = fs::path{path()}.parent_path();
    fs::permissions(directory, fs::perms{0555});
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && setuid(65534) != 0) _exit(2);
        LogFile log;
        log.start(path().c_str(), 1);
        log.write("lost", 1);
        log.stop();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    fs::permissions(directory, fs::perms::owner_all);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_FALSE(fs::exists(path()));
}

TEST_F(LogFileTest, FullDiskIsSilent)
{
    LogFile log;
    log.start("/dev/full", 0);
    log.write("lost", 1);
    log.stop();
    log.start(path().c_str(), 1);
    EXPECT_EQ(this->log(), kStart);
}

// A file that may not grow beyond 100 bytes stands for a disk that fills up and is freed again.
TEST_F(LogFileTest, WritesGoOnWhenThereIsRoomAgain)
{
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        LogFile log;
        log.start(path().c_str(), 1);
        const rlimit tight{100, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &tight);
        log.write(std::string(200, 'x').c_str(), 1);
        log.write("lost", 1);
        const rlimit free{RLIM_INFINITY, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &free);
        log.write("kept", 1);
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    const std::string raw = read(path());
    EXPECT_EQ(raw.substr(100), "kept\n");
    EXPECT_EQ(raw.find("lost"), std::string::npos);
}

// Whatever kills the host: what was written is there.
TEST_F(LogFileTest, LinesSurviveAKill)
{
    constexpr int kLines = 500;
    const pid_t child = fork();
    if (child == 0) {
        LogFile log;
        log.start(path().c_str(), 1);
        for (int line = 1; line <= kLines; ++line) log.write(std::to_string(line).c_str(), 1);
        raise(SIGKILL);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    std::string expected = kStart;
    for (int line = 1; line <= kLines; ++line) expected += std::to_string(line) + "\n";
    EXPECT_EQ(log(), expected);
}

// Stamps are in the local time at that moment.
TEST_F(LogFileTest, FollowsTheTimeZone)
{
    LogFile log;
    setenv("TZ", "AAA+10", 1);
    log.start(path().c_str(), 1);
    const std::string west = read(path());
    setenv("TZ", "AAA-10", 1);
    log.start(path().c_str(), 1);
    const std::string east = read(path());
    unsetenv("TZ");
    tzset();
    EXPECT_NE(west, east);
}

namespace {

struct WritesAtTheEnd {
    bool isUsed = false;
    ~WritesAtTheEnd()
    {
        if (isUsed) kite::outputLog().write("last words", 1);
    }
};
WritesAtTheEnd atTheEnd;  // older than the log: destroyed after its stop line

}  // namespace

TEST_F(LogFileTest, TakesTheLastWordsOfAHost)
{
    const pid_t child = fork();
    if (child == 0) {
        atTheEnd.isUsed = true;
        kite::outputLog().start(path().c_str(), 1);
        kite::outputLog().write("line", 1);
        std::exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_EQ(log(), kStart + std::string{"line\n\n>>>LogStopped: T\nlast words\n"});
}
