// X.h makes a macro of a name that GoogleTest uses: GoogleTest goes first.
#include <gtest/gtest.h>

#include "toolkit/key_symbol.h"

#include <X11/keysym.h>

TEST(KeySymbol, NumbersTheTwelveFunctionKeys)
{
    EXPECT_EQ(kite::functionKeyNumber(XK_F1), 1);
    EXPECT_EQ(kite::functionKeyNumber(XK_F10), 10);
    EXPECT_EQ(kite::functionKeyNumber(XK_F12), 12);
}

TEST(KeySymbol, NumbersNoOtherKey)
{
    for (const KeySym symbol : {KeySym{XK_F1} - 1, KeySym{XK_F13}, KeySym{XK_a}, KeySym{XK_KP_F1},
                                KeySym{XK_Return}, KeySym{NoSymbol}})
        EXPECT_EQ(kite::functionKeyNumber(symbol), 0) << symbol;
}
