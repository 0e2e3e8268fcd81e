#include "process.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

#include "pump.h"

namespace kite::testing {

namespace {

// The variables of ours, replaced by the ones of the same name.
std::vector<std::string> mergedEnvironment(const Process::Environment& changes)
{
    std::vector<std::string> merged;
    for (char** entry = environ; *entry; ++entry) {
        const std::string variable = *entry;
        const std::string name = variable.substr(0, variable.find('='));
        if (std::ranges::find(changes, name, &Process::Environment::value_type::first) ==
            changes.end())
            merged.push_back(variable);
    }
    for (const auto& [name, value] : changes) merged.push_back(name + '=' + value);
    return merged;
}

std::vector<char*> pointersTo(std::vector<std::string>& strings)
{
    std::vector<char*> pointers;
    for (std::string& string : strings) pointers.push_back(string.data());
    pointers.push_back(nullptr);
    return pointers;
}

int memoryFile(const std::string& contents)
{
    const int file = memfd_create("kitegui-test", MFD_CLOEXEC);
    if (file >= 0 && write(file, contents.data(), contents.size()) >= 0) lseek(file, 0, SEEK_SET);
    return file;
}

int statusOf(int waited)
{
    return WIFSIGNALED(waited) ? 128 + WTERMSIG(waited) : WEXITSTATUS(waited);
}

}  // namespace

Process::Process(const std::vector<std::string>& command, const Environment& environment,
                 const std::string& input)
    : output_(memoryFile({}))
{
    const int inputFile = memoryFile(input);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_adddup2(&files, inputFile, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&files, output_, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&files, output_, STDERR_FILENO);

    std::vector<std::string> arguments{"setpriv", "--pdeathsig", "KILL", "--"};
    arguments.insert(arguments.end(), command.begin(), command.end());
    std::vector<std::string> variables = mergedEnvironment(environment);
    if (posix_spawnp(&pid_, "setpriv", &files, nullptr, pointersTo(arguments).data(),
                     pointersTo(variables).data()) != 0)
        pid_ = -1;
    posix_spawn_file_actions_destroy(&files);
    ::close(inputFile);
}

Process::~Process()
{
    if (isRunning()) {
        send(SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
    ::close(output_);
}

bool Process::isRunning()
{
    if (pid_ < 0) return false;
    int waited = 0;
    if (waitpid(pid_, &waited, WNOHANG) != pid_) return true;
    status_ = statusOf(waited);
    pid_ = -1;
    return false;
}

bool Process::wait(milliseconds deadline)
{
    return pumpUntil([this] { return !isRunning(); }, deadline);
}

void Process::send(int signal)
{
    if (pid_ > 0) kill(pid_, signal);
}

std::string Process::output() const
{
    std::string text(static_cast<std::size_t>(lseek(output_, 0, SEEK_END)), '\0');
    const ssize_t count = pread(output_, text.data(), text.size(), 0);
    text.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return text;
}

}  // namespace kite::testing
