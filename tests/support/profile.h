// profile.h: the user profile of the tests: in memory, and it writes down who asks for what.
//
//     host.profile().setInt("mwndw", 500);
//     EXPECT_EQ(host.profile().intOf("mwndx"), 40);
//     EXPECT_THAT(host.profile().writes(), ElementsAre(...));

#pragma once

#include <functional>
#include <iosfwd>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kite::testing {

struct ProfileAccess {
    enum class Kind { ReadInt, WriteInt, ReadString };

    Kind kind = Kind::ReadInt;
    std::string section;
    std::string key;
    int number =
        0;  // the default of a read, the value of a write, the buffer size of a string read

    bool operator==(const ProfileAccess&) const = default;
};

std::ostream& operator<<(std::ostream& out, const ProfileAccess& access);

class Profile {
public:
    // In every section, unless a section is named.
    void setInt(const std::string& key, int value, const std::string& section = {});
    void setString(const std::string& key, const std::string& value,
                   const std::string& section = {});
    void remove(const std::string& key);

    // What is stored in a section, which is what the library wrote or else the test did.
    std::optional<int> intOf(const std::string& key, const std::string& section = "kite") const;
    std::optional<std::string> stringOf(const std::string& key,
                                        const std::string& section = "kite") const;

    // In order.
    const std::vector<ProfileAccess>& accesses() const { return accesses_; }
    std::vector<ProfileAccess> accesses(const std::string& key) const;
    std::vector<ProfileAccess> writes() const;
    void clearAccesses() { accesses_.clear(); }

    // What the host does besides when the library writes or reads.
    void onWrite(const std::function<void()>& action) { onWrite_ = action; }
    void onRead(const std::function<void(const std::string& key)>& action) { onRead_ = action; }

    // The services of the host, recorded.
    int readInt(const std::string& section, const std::string& key, int whenAbsent);
    void writeInt(const std::string& section, const std::string& key, int value);
    std::optional<std::string> readString(const std::string& section, const std::string& key,
                                          int size);

private:
    using Name = std::pair<std::string, std::string>;  // section, key

    std::map<Name, int> integers_;
    std::map<Name, std::string> strings_;
    std::vector<ProfileAccess> accesses_;
    std::function<void()> onWrite_;
    std::function<void(const std::string& key)> onRead_;
};

}  // namespace kite::testing
