#include "watchdog.h"

#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>

#include "artefacts.h"
#include "last_words.h"
#include "temporary_directory.h"

namespace kite::testing {

namespace {

constexpr seconds kTimeForLastWords{2};

bool endsWithin(pid_t child, milliseconds time)
{
    const int handle = static_cast<int>(syscall(SYS_pidfd_open, child, 0));
    pollfd waiting{handle, POLLIN, 0};
    const int ended = poll(&waiting, 1, static_cast<int>(time.count()));
    close(handle);
    return ended > 0;
}

int statusOfDead(pid_t child)
{
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

// A home and a place for files that are gone afterwards, however the test ends. The user's own files
// (X resources above all) play no part in a test.
void settleIn(const TemporaryDirectory& directory)
{
    const std::string path = directory.path().string();
    for (const char* variable : {"HOME", "TMPDIR"}) setenv(variable, path.c_str(), 1);
    for (const char* variable :
         {"XENVIRONMENT", "XAPPLRESDIR", "XUSERFILESEARCHPATH", "RESOURCE_NAME"})
        unsetenv(variable);
    if (chdir(path.c_str()) != 0) std::perror(path.c_str());
}

[[noreturn]] void runChild(const std::function<int()>& test)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    prepareLastWords();
    std::exit(test());
}

void endHanging(pid_t child, seconds deadline)
{
    std::cout << "[ WATCHDOG ] the test still runs after " << deadline.count() << " s" << std::endl;
    artefacts::saveScreen();
    for (int asked = 0; asked < 2; ++asked) {
        kill(child, kLastWordsSignal);
        if (endsWithin(child, kTimeForLastWords)) return;
    }
    kill(child, SIGKILL);
}

int report(int status)
{
    if (!WIFSIGNALED(status)) return WEXITSTATUS(status);
    std::cout << "[ WATCHDOG ] the test was ended by signal " << WTERMSIG(status) << " ("
              << strsignal(WTERMSIG(status)) << ')' << std::endl;
    artefacts::saveScreen();
    return EXIT_FAILURE;
}

}  // namespace

int runWatched(const std::function<int()>& test, seconds deadline)
{
    const TemporaryDirectory directory{"home"};
    settleIn(directory);
    if (deadline == seconds{0}) return test();

    std::cout.flush();
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child < 0) return std::perror("fork"), EXIT_FAILURE;
    if (child == 0) runChild(test);
    if (endsWithin(child, deadline)) return report(statusOfDead(child));
    endHanging(child, deadline);
    statusOfDead(child);
    return EXIT_FAILURE;
}

}  // namespace kite::testing
