// command.cpp: running a command line in the shell.

#include "system_call.h"

#include <kitegui.h>

#include <csignal>
#include <spawn.h>
#include <sys/wait.h>

namespace {

constexpr int kNotRun = -1;
constexpr int kKilledBase = 128;  // a command ended by a signal reports as shells do: 128 + number

// Signals whose treatment belongs to whoever started the host (nohup, a background job): the
// command keeps it.
constexpr int kStartersSignals[] = {SIGHUP, SIGINT, SIGQUIT};

// Holds SIGCHLD back while a command runs: a host's handler that reaps every child would otherwise
// take the status away.
class ChildSignalHeld {
public:
    ChildSignalHeld()
    {
        sigset_t child;
        sigemptyset(&child);
        sigaddset(&child, SIGCHLD);
        pthread_sigmask(SIG_BLOCK, &child, &before);
    }
    ChildSignalHeld(const ChildSignalHeld&) = delete;
    ChildSignalHeld& operator=(const ChildSignalHeld&) = delete;

    ~ChildSignalHeld() { pthread_sigmask(SIG_SETMASK, &before, nullptr); }

private:
    sigset_t before;
};

// The state a command is started with: no signal blocked, none ignored because the host ignores it.
class FreshSignals {
public:
    FreshSignals()
    {
        sigset_t none;
        sigset_t ordinary;
        sigemptyset(&none);
        sigfillset(&ordinary);
        for (const int signal : kStartersSignals) sigdelset(&ordinary, signal);
        posix_spawnattr_init(&attributes);
        posix_spawnattr_setsigmask(&attributes, &none);
        posix_spawnattr_setsigdefault(&attributes, &ordinary);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    FreshSignals(const FreshSignals&) = delete;
    FreshSignals& operator=(const FreshSignals&) = delete;

    ~FreshSignals() { posix_spawnattr_destroy(&attributes); }

    const posix_spawnattr_t* get() const { return &attributes; }

private:
    posix_spawnattr_t attributes;
};

// Starts the shell on the line; false when it cannot be, for instance for a line beyond the
// system's limit.
bool startShell(const char* line, pid_t& child)
{
    char shell[] = "sh";
    char option[] = "-c";
    char endOfOptions[] = "--";  // a line that begins with '-' is a command all the same
    char* const arguments[] = {shell, option, endOfOptions, const_cast<char*>(line), nullptr};
    const FreshSignals signals;
    return posix_spawn(&child, "/bin/sh", nullptr, signals.get(), arguments, environ) == 0;
}

int waitForEnd(pid_t child)
{
    int status = 0;
    // A host that ignores SIGCHLD leaves no status to fetch. The command ran to its end: a success.
    if (kitehost::uninterrupted([&] { return waitpid(child, &status, 0); }) != child) return 0;
    return WIFSIGNALED(status) ? kKilledBase + WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace

// The flags say "wait for the end" and "show nothing". Both always hold here, whatever is passed.
//
// A command that the shell does not find is one that was run: the shell says 127.
KITEGUI_API int kxExec(const char* commandLine, int, int)
{
    if (!commandLine) return kNotRun;
    const ChildSignalHeld held;
    pid_t child = 0;
    return startShell(commandLine, child) ? waitForEnd(child) : kNotRun;
}
