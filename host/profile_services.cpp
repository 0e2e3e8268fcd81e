// profile_services.cpp: reading and storing single settings of the user's profile.

#include "guard.h"
#include "ini_text.h"
#include "profile.h"
#include "profile_file.h"
#include "profile_path.h"

#include <kitegui.h>

#include <algorithm>
#include <cstring>

namespace {

using namespace kitehost;

// The profile as it is on disk now. The file is read every time, which is cheap and never out of
// date; its text is taken apart again only when it is another one.
const Profile& currentProfile()
{
    static Profile profile{""};
    StoredProfile stored = readProfile(profilePath());
    if (stored.text != profile.source()) profile = Profile{std::move(stored.text)};
    return profile;
}

// Reads, changes and replaces the profile with no other host in between. What cannot be stored is
// not: there is nobody to tell.
void store(const char* section, const char* key, int value)
{
    const std::optional<std::string> path = behindLinks(profilePath());
    if (!path || path->empty() || !mayBeProfile(*path)) return;
    createDirectoriesFor(*path);
    const ProfileLock lock{*path};
    if (!lock.isHeld()) return;
    StoredProfile stored = readProfile(*path);
    if (stored.state == StoredProfile::State::Unusable) return;

    Profile profile{std::move(stored.text)};
    profile.set(section, key, value);
    const std::string text = profile.text();
    if (text.size() > kMaxProfileSize) return;  // it could not be read again
    replaceProfile(*path, text,
                   stored.state == StoredProfile::State::Unreadable || profile.isDamaged());
}

}  // namespace

KITEGUI_API int kxGetUPInt(const char* section, const char* key, int defaultValue)
{
    if (!section || !key) return defaultValue;
    return guarded(defaultValue,
                   [&] { return currentProfile().findInt(section, key).value_or(defaultValue); });
}

KITEGUI_API void kxSetUPInt(const char* section, const char* key, int value)
{
    if (!section || !key || !*key) return;
    guarded(false, [&] {
        const bool changes = currentProfile().findInt(section, key) != value;
        if (changes) store(section, key, value);
        return changes;
    });
}

KITEGUI_API void kxGetUPStr(const char* section, const char* key, char* buffer, int size)
{
    if (!section || !key || !buffer || size <= 0) return;
    guarded(false, [&] {
        const char* const value = currentProfile().find(section, key);
        if (!value) return false;
        const std::size_t length = std::min(std::strlen(value), static_cast<std::size_t>(size) - 1);
        std::memcpy(buffer, value, length);
        buffer[length] = '\0';
        return true;
    });
}
