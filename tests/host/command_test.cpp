// command_test.cpp: running command lines.

#include "host_test.h"

#include <climits>
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class Command : public HostTest {
protected:
    static int run(const std::string& line) { return kxExec(line.c_str(), 1, 1); }

    // The masks of signals that the shell itself was started with: one line of its status.
    std::string shellStatus(const std::string& field) const
    {
        EXPECT_EQ(run("grep ^" + field + ": /proc/$$/status | cut -f2 > '" + in("status") + "'"),
                  0);
        return readFile(in("status"));
    }
};

bool contains(const std::string& mask, int signal)
{
    return (std::stoull(mask, nullptr, 16) >> (signal - 1) & 1) != 0;
}

TEST_F(Command, ExitStatusIsTheResult)
{
    EXPECT_EQ(run("exit 0"), 0);
    EXPECT_EQ(run("exit 1"), 1);
    EXPECT_EQ(run("exit 255"), 255);
    EXPECT_EQ(run("true"), 0);
    EXPECT_EQ(run("false"), 1);
    EXPECT_EQ(run(""), 0);
}

TEST_F(Command, KilledCommandGivesTheSignal)
{
    EXPECT_EQ(run("kill -9 $$"), 128 + SIGKILL);
    EXPECT_EQ(run("kill -TERM $$"), 128 + SIGTERM);
}

TEST_F(Command, UnknownCommandIsAResultOfTheShell)
{
    EXPECT_EQ(run(in("no-such-command") + " 2>/dev/null"), 127);
    EXPECT_EQ(run("'" + directory + "' 2>/dev/null"), 126);
}

TEST_F(Command, WhatCannotBeRunIsAFailure)
{
    EXPECT_EQ(kxExec(nullptr, 1, 1), -1);
    EXPECT_EQ(run(": " + std::string(4 * 1024 * 1024, 'x')), -1);  // beyond what the system takes
}

TEST_F(Command, ProcessLimitIsAFailure)
{
    EXPECT_TRUE(heldAsOrdinaryUser([] {
        const rlimit none{0, 0};
        ASSERT_EQ(setrlimit(RLIMIT_NPROC, &none), 0);
        EXPECT_EQ(run("true"), -1);
    }));
}

TEST_F(Command, LineIsForTheShell)
{
    EXPECT_EQ(run("cd '" + directory + "' && echo \"a  b\" | tr a c > out; x=3; exit $x"), 3);
    EXPECT_EQ(readFile(in("out")), "c  b\n");
    EXPECT_EQ(run("-x 2>/dev/null"), 127);  // a command, no option of the shell
}

TEST_F(Command, LongLineIsPassedWhole)
{
    const std::string word(100000, 'w');
    EXPECT_EQ(run("printf %s " + word + " > '" + in("out") + "'"), 0);
    EXPECT_EQ(readFile(in("out")), word);
}

TEST_F(Command, CallReturnsWhenTheCommandHasEnded)
{
    for (const auto& [first, second] : {std::pair{1, 1}, {0, 0}, {1, 0}, {INT_MIN, INT_MAX}}) {
        std::filesystem::remove(in("done"));
        // Many steps, the last of which is the one that shows.
        EXPECT_EQ(kxExec(("i=0; while [ $i -lt 2000 ]; do i=$((i+1)); done; : > '" + in("done") +
                          "'; exit 5")
                             .c_str(),
                         first, second),
                  5);
        EXPECT_TRUE(exists(in("done")));
    }
}

TEST_F(Command, NoProcessRemains)
{
    run("true");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(Command, CommandBlocksAndIgnoresNoSignals)
{
    EXPECT_TRUE(heldInChild([this] {
        sigset_t all;
        sigfillset(&all);
        sigprocmask(SIG_SETMASK, &all, nullptr);
        for (const int signal : {SIGPIPE, SIGTERM, SIGUSR1, SIGCHLD, SIGXFSZ})
            std::signal(signal, SIG_IGN);
        EXPECT_EQ(std::stoull(shellStatus("SigBlk"), nullptr, 16), 0u);
        const std::string ignored = shellStatus("SigIgn");
        for (const int signal : {SIGPIPE, SIGTERM, SIGUSR1, SIGCHLD, SIGXFSZ})
            EXPECT_FALSE(contains(ignored, signal)) << signal;
        sigset_t after;
        sigprocmask(SIG_SETMASK, nullptr, &after);
        EXPECT_EQ(sigismember(&after, SIGUSR2), 1);
    }));
}

TEST_F(Command, CommandKeepsIgnoringWhatTheUserHadIgnored)
{
    EXPECT_TRUE(heldInChild([this] {
        for (const int signal : {SIGHUP, SIGINT, SIGQUIT}) std::signal(signal, SIG_IGN);
        const std::string ignored = shellStatus("SigIgn");
        for (const int signal : {SIGHUP, SIGINT, SIGQUIT})
            EXPECT_TRUE(contains(ignored, signal)) << signal;
    }));
}

TEST_F(Command, HostThatIgnoresItsChildrenSeesSuccess)
{
    EXPECT_TRUE(heldInChild([this] {
        std::signal(SIGCHLD, SIG_IGN);
        EXPECT_EQ(run(": > '" + in("done") + "'; exit 3"), 0);
        EXPECT_TRUE(exists(in("done")));
    }));
}

volatile sig_atomic_t reaperCalls = 0;

void reapAll(int)
{
    reaperCalls = reaperCalls + 1;
    while (waitpid(-1, nullptr, WNOHANG) > 0) {}
}

TEST_F(Command, HostThatReapsEveryChildDoesNotTakeTheStatus)
{
    EXPECT_TRUE(heldInChild([] {
        std::signal(SIGCHLD, reapAll);
        for (int i = 0; i < 20; ++i) EXPECT_EQ(run("exit 3"), 3);
        EXPECT_GT(reaperCalls, 0);
        sigset_t after;
        sigprocmask(SIG_SETMASK, nullptr, &after);
        EXPECT_EQ(sigismember(&after, SIGCHLD), 0);
    }));
}

volatile sig_atomic_t interruptions = 0;

TEST_F(Command, SignalsDoNotCutTheWaitShort)
{
    EXPECT_TRUE(heldInChild([] {
        struct sigaction count {};  // without SA_RESTART
        count.sa_handler = [](int) { interruptions = interruptions + 1; };
        sigaction(SIGUSR1, &count, nullptr);
        EXPECT_EQ(run("for i in 1 2 3 4 5; do kill -USR1 $PPID; done; exit 9"), 9);
        EXPECT_GT(interruptions, 0);
    }));
}

}  // namespace
