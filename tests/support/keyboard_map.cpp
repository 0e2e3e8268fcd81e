#include "keyboard_map.h"

#include <X11/keysym.h>

#include <map>
#include <memory>

#include "connection.h"

namespace kite::testing {

namespace {

constexpr int kLevels = 2;  // plain and shifted

struct Mapping {
    int first = 0;
    int last = 0;
    int width = 0;  // symbols of each key
    std::unique_ptr<KeySym, int (*)(void*)> symbols{nullptr, XFree};

    KeySym at(int code, int level) const
    {
        return level < width ? symbols.get()[(code - first) * width + level] : NoSymbol;
    }
};

Mapping readMapping()
{
    Mapping mapping;
    XDisplayKeycodes(connection(), &mapping.first, &mapping.last);
    const int count = mapping.last - mapping.first + 1;
    mapping.symbols.reset(XGetKeyboardMapping(connection(), static_cast<KeyCode>(mapping.first),
                                              count, &mapping.width));
    return mapping;
}

Key search(const Mapping& mapping, KeySym symbol)
{
    for (int level = 0; level < kLevels; ++level)
        for (int code = mapping.first; code <= mapping.last; ++code)
            if (mapping.at(code, level) == symbol) return {static_cast<KeyCode>(code), level > 0};
    return {};
}

bool isUnused(const Mapping& mapping, int code)
{
    for (int level = 0; level < mapping.width; ++level)
        if (mapping.at(code, level) != NoSymbol) return false;
    return true;
}

// The clients learn of it before they see the key: both come on the same way.
Key putOnUnusedKey(const Mapping& mapping, KeySym symbol)
{
    for (int code = mapping.last; code >= mapping.first; --code) {
        if (!isUnused(mapping, code)) continue;
        KeySym both[kLevels] = {symbol, symbol};
        XChangeKeyboardMapping(connection(), code, kLevels, both, 1);
        XSync(connection(), False);
        return {static_cast<KeyCode>(code), false};
    }
    return {};
}

// Takes the next character off the front. Damaged text yields its bytes one by one.
char32_t takeCharacter(std::string_view& utf8)
{
    const auto first = static_cast<unsigned char>(utf8.front());
    const std::size_t length = first < 0xC0 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (length == 1 || length > utf8.size()) {
        utf8.remove_prefix(1);
        return first;
    }
    char32_t character = first & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i)
        character = character << 6 | (static_cast<unsigned char>(utf8[i]) & 0x3FU);
    utf8.remove_prefix(length);
    return character;
}

KeySym symbolOf(char32_t character)
{
    switch (character) {
    case U'\n': return XK_Return;
    case U'\t': return XK_Tab;
    case U'\b': return XK_BackSpace;
    case 27: return XK_Escape;
    default: return character < 0x100 ? character : 0x01000000 | character;
    }
}

}  // namespace

Key keyFor(KeySym symbol)
{
    static std::map<KeySym, Key> known;  // the keyboard changes by our own hand only
    const auto found = known.find(symbol);
    if (found != known.end()) return found->second;

    const Mapping mapping = readMapping();
    Key key = search(mapping, symbol);
    if (!key.code) key = putOnUnusedKey(mapping, symbol);
    return known[symbol] = key;
}

std::vector<KeySym> symbolsOf(std::string_view utf8)
{
    std::vector<KeySym> symbols;
    while (!utf8.empty()) symbols.push_back(symbolOf(takeCharacter(utf8)));
    return symbols;
}

}  // namespace kite::testing
