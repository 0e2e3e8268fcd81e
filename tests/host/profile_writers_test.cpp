// profile_writers_test.cpp: several hosts at one profile, and hosts that are killed.

#include "host_test.h"

#include <csignal>
#include <fcntl.h>
#include <random>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using ProfileWriters = HostTest;

std::string keyOf(int writer, int number)
{
    return "w" + std::to_string(writer) + "k" + std::to_string(number);
}

TEST_F(ProfileWriters, NoneLosesAKeyOfAnother)
{
    constexpr int kWriters = 8;
    constexpr int kKeys = 25;
    std::vector<pid_t> writers;
    for (int writer = 0; writer < kWriters; ++writer)
        writers.push_back(startChild([writer] {
            for (int number = 0; number < kKeys; ++number)
                kxSetUPInt(number % 2 ? "odd" : "even", keyOf(writer, number).c_str(), number);
        }));
    for (const pid_t writer : writers) EXPECT_EQ(endOf(writer), 0);
    for (int writer = 0; writer < kWriters; ++writer)
        for (int number = 0; number < kKeys; ++number)
            EXPECT_EQ(kxGetUPInt(number % 2 ? "odd" : "even", keyOf(writer, number).c_str(), -1),
                      number);
    EXPECT_EQ(namesIn(directory), (std::vector<std::string>{"profile.ini", "profile.ini.lock"}));
}

TEST_F(ProfileWriters, OneDamagedProfileIsKeptOnce)
{
    putProfile("damaged");
    std::vector<pid_t> writers;
    for (int writer = 0; writer < 6; ++writer)
        writers.push_back(
            startChild([writer] { kxSetUPInt("a", keyOf(writer, 0).c_str(), writer); }));
    for (const pid_t writer : writers) EXPECT_EQ(endOf(writer), 0);
    for (int writer = 0; writer < 6; ++writer)
        EXPECT_EQ(kxGetUPInt("a", keyOf(writer, 0).c_str(), -1), writer);
    EXPECT_EQ(namesIn(directory),
              (std::vector<std::string>{"profile.ini", "profile.ini.damaged", "profile.ini.lock"}));
}

TEST_F(ProfileWriters, WriterWaitsForTheLock)
{
    putProfile("[a]\nx=1\n");
    const int lock = open((profile + ".lock").c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(flock(lock, LOCK_EX), 0);
    const pid_t writer = startChild([lock] {
        close(lock);
        kxSetUPInt("a", "x", 2);
    });
    // The system lists a waiting request behind "->".
    const auto waits = [writer] {
        const std::string locks = readFile("/proc/locks");
        const std::size_t at = locks.find(" " + std::to_string(writer) + " ");
        return at != locks.npos && locks.rfind("->", at) != locks.npos &&
               locks.rfind("->", at) > locks.rfind('\n', at);
    };
    while (!waits()) ASSERT_EQ(waitpid(writer, nullptr, WNOHANG), 0) << "it did not wait";
    EXPECT_EQ(kxGetUPInt("a", "x", 0), 1);  // readers need no lock
    writeFile(profile, "[a]\nx=1\ny=5\n");
    close(lock);
    EXPECT_EQ(endOf(writer), 0);
    EXPECT_EQ(profileText(), "[a]\nx = 2\ny = 5\n");  // read after the lock was had
}

// A writer is killed at any moment, again and again, while this process reads: each reading finds a
// whole profile, and the next writer is not held up by what the killed one left.
TEST_F(ProfileWriters, KilledWriterLeavesAWholeProfile)
{
    constexpr int kKills = 40;
    constexpr int kMaxReads = 60;
    const std::string body(50000, 'b');
    putProfile("[first]\nbody=" + body + "\n[n]\nn=0\n[last]\nend=1\n");
    const auto expectWhole = [&] {
        ASSERT_EQ(getStr("first", "body"), body);
        ASSERT_GE(kxGetUPInt("n", "n", -1), 0);
        ASSERT_EQ(kxGetUPInt("last", "end", 0), 1);
    };
    std::mt19937 random{7};
    for (int kill = 0; kill < kKills; ++kill) {
        const int before = kxGetUPInt("n", "n", -1);
        const pid_t writer = startChild([before] {
            for (int n = before + 1;; ++n) kxSetUPInt("n", "n", n);
        });
        while (kxGetUPInt("n", "n", -1) == before) expectWhole();
        for (auto reads = random() % kMaxReads; reads > 0; --reads) expectWhole();
        ASSERT_EQ(::kill(writer, SIGKILL), 0);
        EXPECT_EQ(endOf(writer), -1);
        expectWhole();
        if (HasFatalFailure()) return;
    }
    const int reached = kxGetUPInt("n", "n", -1);
    EXPECT_GE(reached, kKills);
    kxSetUPInt("n", "n", 0);
    EXPECT_EQ(kxGetUPInt("n", "n", -1), 0);
    EXPECT_EQ(namesIn(directory), (std::vector<std::string>{"profile.ini", "profile.ini.lock"}));
}

}  // namespace
