// profile_file.h: the profile on disk: read as a whole, replaced as a whole, by one host at a time.

#pragma once

#include "system_call.h"

#include <cstddef>
#include <string>
#include <sys/types.h>

namespace kitehost {

constexpr std::size_t kMaxProfileSize = 16 * 1024 * 1024;  // bytes; what is larger is no profile

struct StoredProfile {
    enum class State {
        Missing,
        Readable,
        Unreadable,  // a file without read permission, with a disk error, or too large
        Unusable,    // not a regular file, or the system has no means to open it now: hands off
    };
    State state;
    std::string text;  // empty unless readable
};

StoredProfile readProfile(const std::string& path);

// Is there a regular file, or nothing yet? Beside anything else, such as a device, nothing is
// created.
bool mayBeProfile(const std::string& path);

// The right to change the profile. It is held on a file beside it, which stays when the profile is
// replaced; the system takes it back from a host that dies.
class ProfileLock {
public:
    explicit ProfileLock(const std::string& path);

    bool isHeld() const;

private:
    FileDescriptor file;
    bool held;
};

// Puts a text in the place of the profile; a reader finds either the old or the new one, whole. A
// file that exists keeps its mode and owner. With `keepOld` it is first renamed to a free name
// beside it instead.
//
// Returns false, with the profile as it was, when that fails or the user made the profile
// read-only.
bool replaceProfile(const std::string& path, const std::string& text, bool keepOld);

}  // namespace kitehost
