#include "dialogs/special_keys.h"

#include <X11/keysym.h>
#include <kitegui.h>

#include "toolkit/key_symbol.h"

namespace kite {

namespace {

// Texts, and what is typed into, keep these keys to themselves.
constexpr TypeSet kAllOfThese{ControlType::Image, ControlType::Button};
constexpr TypeSet kWithItems{ControlType::Image, ControlType::Button, ControlType::Choice,
                             ControlType::List};

struct SpecialKey {
    KeySym symbol;
    int code;
    TypeSet types;
};

// Hosts know no Insert of the keypad.
constexpr SpecialKey kSpecialKeys[] = {
    {XK_Up, GUI_KEY_UP, kAllOfThese},        {XK_KP_Up, GUI_KEY_UP, kAllOfThese},
    {XK_Down, GUI_KEY_DOWN, kAllOfThese},    {XK_KP_Down, GUI_KEY_DOWN, kAllOfThese},
    {XK_Left, GUI_KEY_LEFT, kAllOfThese},    {XK_KP_Left, GUI_KEY_LEFT, kAllOfThese},
    {XK_Right, GUI_KEY_RIGHT, kAllOfThese},  {XK_KP_Right, GUI_KEY_RIGHT, kAllOfThese},
    {XK_Delete, GUI_KEY_DELETE, kWithItems}, {XK_KP_Delete, GUI_KEY_DELETE, kWithItems},
    {XK_Insert, GUI_KEY_INSERT, kWithItems}, {XK_BackSpace, GUI_KEY_BACKSPACE, kWithItems},
};

}  // namespace

std::optional<int> specialKeyCode(KeySym symbol, ControlType type)
{
    if (const int number = functionKeyNumber(symbol)) return number;
    for (const SpecialKey& key : kSpecialKeys)
        if (key.symbol == symbol && key.types.has(type)) return key.code;
    return std::nullopt;
}

}  // namespace kite
