#include "profile_file.h"

#include "profile_path.h"

#include <cstdio>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>

namespace kitehost {
namespace {

using State = StoredProfile::State;

constexpr mode_t kNewFileMode = 0600;
constexpr mode_t kPermissions = 0777;
constexpr int kMaxKept = 10000;  // damaged profiles; the next one stays where it is

State stateFor(int openError)
{
    switch (openError) {
    case ENOENT: return State::Missing;
    case EACCES:
    case EPERM: return State::Unreadable;
    default: return State::Unusable;
    }
}

// Reads up to the end, or one byte beyond the limit.
bool readAll(const FileDescriptor& file, std::string& text)
{
    char block[64 * 1024];
    while (text.size() <= kMaxProfileSize) {
        const ssize_t count = uninterrupted([&] { return read(file.get(), block, sizeof block); });
        if (count <= 0) return count == 0;
        text.append(block, static_cast<std::size_t>(count));
    }
    return false;
}

bool writeAll(const FileDescriptor& file, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t count =
            uninterrupted([&] { return write(file.get(), text.data(), text.size()); });
        if (count <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool takeOver(const FileDescriptor& file, const struct stat& old)
{
    // First the owner, since a change of it may clear mode bits. It differs when a host runs as
    // root on a user's profile; who may not give files away becomes the owner.
    if ((old.st_uid != geteuid() || old.st_gid != getegid()) &&
        fchown(file.get(), old.st_uid, old.st_gid) != 0 && errno != EPERM)
        return false;
    return fchmod(file.get(), old.st_mode & kPermissions) == 0;
}

// Writes the text into a new file and onto the disk. A file left there by a host that was killed is
// removed first.
bool writeNewFile(const std::string& path, const std::string& text, const struct stat* old)
{
    unlink(path.c_str());
    const FileDescriptor file{uninterrupted(
        [&] { return open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode); })};
    return file.isOpen() && (!old || takeOver(file, *old)) && writeAll(file, text) &&
           uninterrupted([&] { return fsync(file.get()); }) == 0;
}

// Renames the profile to a name that no file has. The lock is held, so no other host takes that
// name.
bool keepBeside(const std::string& path)
{
    struct stat existing {};
    std::string name = path + ".damaged";
    for (int number = 1; lstat(name.c_str(), &existing) == 0; ++number) {
        if (number >= kMaxKept) return false;
        name = path + ".damaged." + std::to_string(number);
    }
    return errno == ENOENT && std::rename(path.c_str(), name.c_str()) == 0;
}

// Makes the renames last. A directory that cannot be opened for it has them in time anyway.
void syncDirectory(const std::string& path)
{
    const FileDescriptor directory{
        open(directoryOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (directory.isOpen()) fsync(directory.get());
}

}  // namespace

StoredProfile readProfile(const std::string& path)
{
    // Without waiting: a pipe in the profile's place must not stop the host.
    const FileDescriptor file{uninterrupted(
        [&] { return open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY); })};
    if (!file.isOpen()) return {stateFor(errno), {}};
    struct stat status {};
    if (fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return {State::Unusable, {}};
    std::string text;
    if (!readAll(file, text)) return {State::Unreadable, {}};
    return {State::Readable, std::move(text)};
}

bool mayBeProfile(const std::string& path)
{
    struct stat status {};
    return stat(path.c_str(), &status) != 0 ? errno == ENOENT : S_ISREG(status.st_mode);
}

ProfileLock::ProfileLock(const std::string& path)
    : file{uninterrupted([&] {
          return open((path + ".lock").c_str(),
                      O_RDONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, kNewFileMode);
      })},
      held{file.isOpen() && uninterrupted([&] { return flock(file.get(), LOCK_EX); }) == 0}
{
}

bool ProfileLock::isHeld() const
{
    return held;
}

bool replaceProfile(const std::string& path, const std::string& text, bool keepOld)
{
    struct stat status {};
    const bool inheritsMode = !keepOld && stat(path.c_str(), &status) == 0;
    if (inheritsMode && faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) return false;

    const std::string next = path + ".new";  // one name is enough: the lock is held
    const bool done = writeNewFile(next, text, inheritsMode ? &status : nullptr) &&
                      (!keepOld || keepBeside(path)) &&
                      std::rename(next.c_str(), path.c_str()) == 0;
    if (done)
        syncDirectory(path);
    else
        unlink(next.c_str());
    return done;
}

}  // namespace kitehost
