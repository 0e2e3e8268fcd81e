// profile.h: the settings of all applications, read from and turned into the text of an INI file.

#pragma once

#include <memory>
#include <optional>
#include <string>

namespace kitehost {

class Profile {
public:
    // A damaged text makes an empty profile.
    explicit Profile(std::string text);
    ~Profile();
    Profile& operator=(Profile&&) noexcept;

    bool isDamaged() const;

    // The text the profile was made from.
    const std::string& source() const;

    // The value as it stands in the text, without the blanks around it; null when there is none.
    const char* find(const char* section, const char* key) const;

    // The value when it is a decimal integer and nothing else.
    std::optional<int> findInt(const char* section, const char* key) const;

    // The key must not be empty.
    void set(const char* section, const char* key, int value);

    // The profile with what was set, comments included.
    std::string text() const;

private:
    class Ini;
    std::string original;
    std::unique_ptr<Ini> ini;
    bool damaged = false;
};

}  // namespace kitehost
