#include "toolkit/key_symbol.h"

#include <X11/Xutil.h>
#include <X11/keysym.h>

namespace kite {

namespace {

constexpr int kLongestKeyText = 80;

}  // namespace

KeySym keySymbolOf(XKeyEvent* press)
{
    char text[kLongestKeyText];
    KeySym symbol = NoSymbol;
    XLookupString(press, text, kLongestKeyText, &symbol, nullptr);
    return symbol;
}

int functionKeyNumber(KeySym symbol)
{
    return symbol >= XK_F1 && symbol <= XK_F12 ? static_cast<int>(symbol - XK_F1) + 1 : 0;
}

}  // namespace kite
