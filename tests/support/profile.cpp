#include "profile.h"

#include <algorithm>
#include <ostream>

namespace kite::testing {

namespace {

// A value of the section itself wins over one that holds in every section.
template <typename Map>
std::optional<typename Map::mapped_type> find(const Map& map, const std::string& section,
                                              const std::string& key)
{
    for (const std::string& place : {section, std::string{}})
        if (const auto found = map.find({place, key}); found != map.end()) return found->second;
    return std::nullopt;
}

const char* nameOf(ProfileAccess::Kind kind)
{
    switch (kind) {
    case ProfileAccess::Kind::ReadInt: return "ReadInt";
    case ProfileAccess::Kind::WriteInt: return "WriteInt";
    case ProfileAccess::Kind::ReadString: return "ReadString";
    }
    return "?";
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const ProfileAccess& access)
{
    return out << nameOf(access.kind) << ' ' << access.section << '/' << access.key << ' '
               << access.number;
}

void Profile::setInt(const std::string& key, int value, const std::string& section)
{
    integers_[{section, key}] = value;
}

void Profile::setString(const std::string& key, const std::string& value,
                        const std::string& section)
{
    strings_[{section, key}] = value;
}

void Profile::remove(const std::string& key)
{
    std::erase_if(integers_, [&](const auto& entry) { return entry.first.second == key; });
    std::erase_if(strings_, [&](const auto& entry) { return entry.first.second == key; });
}

std::optional<int> Profile::intOf(const std::string& key, const std::string& section) const
{
    return find(integers_, section, key);
}

std::optional<std::string> Profile::stringOf(const std::string& key,
                                             const std::string& section) const
{
    return find(strings_, section, key);
}

std::vector<ProfileAccess> Profile::accesses(const std::string& key) const
{
    std::vector<ProfileAccess> some;
    std::ranges::copy_if(accesses_, std::back_inserter(some),
                         [&](const ProfileAccess& access) { return access.key == key; });
    return some;
}

std::vector<ProfileAccess> Profile::writes() const
{
    std::vector<ProfileAccess> some;
    std::ranges::copy_if(accesses_, std::back_inserter(some), [](const ProfileAccess& access) {
        return access.kind == ProfileAccess::Kind::WriteInt;
    });
    return some;
}

// The actions are called by copies: one may set another.
int Profile::readInt(const std::string& section, const std::string& key, int whenAbsent)
{
    accesses_.push_back({ProfileAccess::Kind::ReadInt, section, key, whenAbsent});
    if (const auto action = onRead_) action(key);
    return find(integers_, section, key).value_or(whenAbsent);
}

void Profile::writeInt(const std::string& section, const std::string& key, int value)
{
    accesses_.push_back({ProfileAccess::Kind::WriteInt, section, key, value});
    integers_[{section, key}] = value;
    if (const auto action = onWrite_) action();
}

std::optional<std::string> Profile::readString(const std::string& section, const std::string& key,
                                               int size)
{
    accesses_.push_back({ProfileAccess::Kind::ReadString, section, key, size});
    if (const auto action = onRead_) action(key);
    return find(strings_, section, key);
}

}  // namespace kite::testing
