#include "host_test.h"

#include <algorithm>
#include <csignal>
#include <fstream>
#include <grp.h>
#include <sstream>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr uid_t kNobody = 65534;

std::string newDirectory()
{
    std::string path = (fs::temp_directory_path() / "kitehost-XXXXXX").string();
    if (!mkdtemp(path.data())) std::abort();
    return fs::canonical(path).string();
}

}  // namespace

Environment::Environment(const char* variable, const char* value)
    : name{variable}, wasSet{std::getenv(variable) != nullptr}
{
    if (wasSet) before = std::getenv(variable);
    if (value)
        setenv(variable, value, 1);
    else
        unsetenv(variable);
}

Environment::~Environment()
{
    if (wasSet)
        setenv(name.c_str(), before.c_str(), 1);
    else
        unsetenv(name.c_str());
}

HostTest::HostTest()
    : directory{newDirectory()}, profile{directory + "/profile.ini"}, chosenProfile{"KITE_PROFILE",
                                                                                    profile.c_str()}
{
}

HostTest::~HostTest()
{
    fs::remove_all(directory);
}

std::string HostTest::in(const std::string& name) const
{
    return directory + "/" + name;
}

void HostTest::putProfile(const std::string& text) const
{
    writeFile(profile, text);
}

std::string HostTest::profileText() const
{
    return readFile(profile);
}

std::string readFile(const std::string& path)
{
    std::ifstream file{path, std::ios::binary};
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

void writeFile(const std::string& path, const std::string& text)
{
    std::ofstream file{path, std::ios::binary | std::ios::trunc};
    file << text;
    file.close();
    ASSERT_TRUE(file.good()) << path;
}

mode_t modeOf(const std::string& path)
{
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777;
}

bool exists(const std::string& path)
{
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

std::vector<std::string> namesIn(const std::string& directory)
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator{directory})
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string getStr(const std::string& section, const std::string& key)
{
    std::string buffer = "(absent)";
    buffer.resize(1024 * 1024);
    kxGetUPStr(section.c_str(), key.c_str(), buffer.data(), static_cast<int>(buffer.size()));
    return buffer.c_str();
}

pid_t startChild(const std::function<void()>& steps)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child != 0) return child;
    prctl(PR_SET_PDEATHSIG, SIGKILL);  // a test that is killed leaves no process behind
    steps();
    std::fflush(nullptr);
    _exit(testing::Test::HasFailure() ? 1 : 0);
}

int endOf(pid_t child)
{
    int status = 0;
    if (waitpid(child, &status, 0) != child) return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

testing::AssertionResult heldInChild(const std::function<void()>& steps)
{
    const int status = endOf(startChild(steps));
    if (status == 0) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "the child ended with " << status;
}

testing::AssertionResult heldAsOrdinaryUser(const std::function<void()>& steps)
{
    return heldInChild([&] {
        if (geteuid() == 0) {
            ASSERT_EQ(setgroups(0, nullptr), 0);
            ASSERT_EQ(setgid(kNobody), 0);
            ASSERT_EQ(setuid(kNobody), 0);
        }
        steps();
    });
}
