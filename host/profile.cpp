#include "profile.h"

#include "ini_text.h"

#include <charconv>
#include <new>
#include <string_view>

#define SI_NO_CONVERSION  // bytes as they are, in whatever encoding the fonts have
#define SI_IMPLEMENTATION
#include <SimpleIni.h>

namespace kitehost {
namespace {

constexpr bool kUtf8 = false;       // the texts are in the encoding of the fonts, 8-bit by default
constexpr bool kMultiKey = true;    // a user's second line with the same key is not thrown away
constexpr bool kMultiLine = false;  // "<<<" is a value like any other and swallows no lines

void check(SI_Error error)
{
    if (error < 0) throw std::bad_alloc{};  // the only failure when nothing is converted
}

std::optional<int> toInt(std::string_view text)
{
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

}  // namespace

// Names are told apart by case: two names that a program holds for different never share a value.
//
// Quotes belong to the value: a command line such as "my print" "%file" would lose its outer ones.
class Profile::Ini {
public:
    Ini() : table{kUtf8, kMultiKey, kMultiLine} {}

    CSimpleIniCaseA table;
};

Profile::Profile(std::string text)
    : original{std::move(text)}, ini{std::make_unique<Ini>()}, damaged{!isIniText(original)}
{
    if (!damaged) check(ini->table.LoadData(original.data(), original.size()));
}

Profile::~Profile() = default;
Profile& Profile::operator=(Profile&&) noexcept = default;

bool Profile::isDamaged() const
{
    return damaged;
}

const std::string& Profile::source() const
{
    return original;
}

// Of several lines with the same key the last one counts.
const char* Profile::find(const char* section, const char* key) const
{
    CSimpleIniCaseA::TNamesDepend values;
    const bool isThere =
        ini->table.GetAllValues(sectionInFile(section).c_str(), keyInFile(key).c_str(), values);
    return isThere ? values.back().pItem : nullptr;
}

std::optional<int> Profile::findInt(const char* section, const char* key) const
{
    const char* const value = find(section, key);
    return value ? toInt(value) : std::nullopt;
}

void Profile::set(const char* section, const char* key, int value)
{
    check(ini->table.SetLongValue(sectionInFile(section).c_str(), keyInFile(key).c_str(), value,
                                  nullptr, /*hex=*/false, /*replace=*/true));
}

// SimpleIni keeps comments in front of the keys and sections they stand at. Those behind the last
// key, and those at a heading that repeats an earlier one, it drops: they follow at the end.
std::string Profile::text() const
{
    std::string result;
    check(ini->table.Save(result, /*signature=*/ini->table.IsUnicode()));
    if (const std::string lost = damaged ? "" : commentsLost(original, result); !lost.empty())
        result.append("\n").append(lost);
    return result;
}

}  // namespace kitehost
