// profile_disk_test.cpp: what the system does not grant: descriptors, a healthy disk, memory. The
// system's functions are replaced here; kitehost finds these first.

#include "host_test.h"

#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <fcntl.h>
#include <new>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::string unavailableFile;      // opening it fails with ENFILE
bool diskFails = false;           // fsync fails with EIO
std::function<void(int)> onSync;  // called with the descriptor before an fsync
bool memoryIsLimited = false;
int allocationsLeft = 0;  // while memory is limited

void* allocate(std::size_t size)
{
    if (memoryIsLimited && allocationsLeft-- <= 0) return nullptr;
    return std::malloc(size);
}

}  // namespace

extern "C" int open(const char* path, int flags, ...)
{
    if (!unavailableFile.empty() && unavailableFile == path) {
        errno = ENFILE;
        return -1;
    }
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = flags & O_CREAT ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return openat(AT_FDCWD, path, flags, mode);
}

extern "C" int fsync(int file)
{
    if (onSync) onSync(file);
    if (!diskFails) return static_cast<int>(syscall(SYS_fsync, file));
    errno = EIO;
    return -1;
}

// Not inlined: the compiler would take the pairs of malloc and free for mistakes.
[[gnu::noinline]] void* operator new(std::size_t size)
{
    if (void* const memory = allocate(size)) return memory;
    throw std::bad_alloc{};
}

[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace {

using ProfileDisk = HostTest;

std::string nameOf(int file)
{
    return std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file)).string();
}

TEST_F(ProfileDisk, NewTextIsOnTheDiskBeforeItReplacesTheOld)
{
    putProfile("[a]\nx=1\n");
    std::vector<std::string> steps;
    onSync = [&](int file) { steps.push_back(nameOf(file) + ": " + profileText()); };
    kxSetUPInt("a", "x", 2);
    onSync = nullptr;
    EXPECT_EQ(steps, (std::vector<std::string>{profile + ".new: [a]\nx=1\n",
                                               directory + ": [a]\nx = 2\n"}));
}

TEST_F(ProfileDisk, DamagedProfileStaysInPlaceUntilTheNewTextIsOnTheDisk)
{
    putProfile("damaged");
    std::vector<std::string> steps;
    onSync = [&](int) { steps.push_back(profileText()); };
    kxSetUPInt("a", "x", 2);
    onSync = nullptr;
    EXPECT_EQ(steps, (std::vector<std::string>{"damaged", "[a]\nx = 2\n"}));
}

TEST_F(ProfileDisk, DiskErrorLeavesTheOldProfile)
{
    for (const std::string text : {"[a]\nx=1\n", "damaged"}) {
        putProfile(text);
        diskFails = true;
        kxSetUPInt("a", "x", 2);
        diskFails = false;
        EXPECT_EQ(profileText(), text);
        EXPECT_EQ(namesIn(directory),
                  (std::vector<std::string>{"profile.ini", "profile.ini.lock"}));
    }
}

TEST_F(ProfileDisk, ProfileThatCannotBeOpenedForNowIsNotDamaged)
{
    putProfile("[a]\nx=1\n");
    unavailableFile = profile;
    EXPECT_EQ(kxGetUPInt("a", "x", 9), 9);
    kxSetUPInt("a", "x", 2);
    unavailableFile.clear();
    EXPECT_EQ(kxGetUPInt("a", "x", 9), 1);
    EXPECT_EQ(namesIn(directory), (std::vector<std::string>{"profile.ini", "profile.ini.lock"}));
}

TEST_F(ProfileDisk, WithoutLockNothingIsWritten)
{
    putProfile("[a]\nx=1\n");
    unavailableFile = profile + ".lock";
    kxSetUPInt("a", "x", 2);
    unavailableFile.clear();
    EXPECT_EQ(profileText(), "[a]\nx=1\n");
    EXPECT_EQ(namesIn(directory), std::vector<std::string>{"profile.ini"});
}

// Calls with memory for 0, 1, 2, ... allocations until one has enough. Returns how many were too
// few.
int callsWithTooLittle(const std::function<bool()>& callSucceeds)
{
    for (int allocations = 0;; ++allocations) {
        memoryIsLimited = true;
        allocationsLeft = allocations;
        const bool succeeded = callSucceeds();
        memoryIsLimited = false;
        if (succeeded) return allocations;
    }
}

// In children: SimpleIni gives some of its memory up for lost when more cannot be had.
TEST_F(ProfileDisk, WithoutMemoryReadingGivesTheDefault)
{
    putProfile("; c\n[a]\nx=1\ny=text\n");
    EXPECT_TRUE(heldInChild([] {
        EXPECT_GT(callsWithTooLittle([] {
                      const int value = kxGetUPInt("a", "x", 9);
                      if (value != 1 && value != 9) std::abort();
                      return value == 1;
                  }),
                  5);
    }));
    EXPECT_TRUE(heldInChild([] {
        char text[] = "before";
        EXPECT_GT(callsWithTooLittle([&] {
                      kxGetUPStr("a", "y", text, sizeof text);
                      return std::string_view{text} != "before";
                  }),
                  5);
        EXPECT_STREQ(text, "text");
    }));
}

TEST_F(ProfileDisk, WithoutMemoryWritingLeavesAWholeProfile)
{
    for (const std::string text : {"; c\n[a]\nx=1\n; end\n", "damaged"}) {
        putProfile(text);
        EXPECT_TRUE(heldInChild([&] {
            EXPECT_GT(callsWithTooLittle([&] {
                          kxSetUPInt("a", "x", 2);
                          memoryIsLimited = false;
                          const std::string now = profileText();
                          if (now != text && now.find("x = 2\n") == now.npos) std::abort();
                          return now != text;
                      }),
                      10);
        }));
        EXPECT_EQ(kxGetUPInt("a", "x", 0), 2);
    }
    EXPECT_EQ(readFile(profile + ".damaged"), "damaged");
}

TEST_F(ProfileDisk, WithoutMemoryPathsAreWhatIsKnown)
{
    EXPECT_TRUE(heldInChild([] {
        const char* const path = "/a/long/enough/path/for/memory/../of/its/own";
        EXPECT_GT(callsWithTooLittle([path] { return kxFullName(path) != path; }), 0);
        EXPECT_STREQ(kxFullName(path), "/a/long/enough/path/for/of/its/own");
        EXPECT_GT(callsWithTooLittle([] { return std::string_view{kxAppDir()} != "./"; }), 0);
    }));
}

}  // namespace
