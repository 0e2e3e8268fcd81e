// Wrong calls while the menu bar is built: each message, and which one comes first.

#include "commands_support.h"

using namespace kite::testing;

namespace {

std::string longName()
{
    return std::string(64, 'x');
}

// Item 10 is plain, 11 a check; so are the buttons 20 and 21.
void buildBoth()
{
    addImage("image");
    guiToolbarButton("image", nullptr, GUI_PLAIN, 20);
    guiToolbarButton("image", nullptr, GUI_CHECK, 21);
    guiMenu("Menu");
    guiMenuItem("Plain", 0, GUI_PLAIN, 10);
    guiMenuItem("Check", 0, GUI_CHECK, 11);
}

}  // namespace

// Each call is wrong in its own way and in all the later ones.
GUI_STARTUP_TEST(MenuMisuse, ItemsAreCheckedInOrder)
{
    app.init();
    const std::string tooLong = longName();
    const char* const name = tooLong.c_str();
    EXPECT_MISUSE(guiMenuItem(name, '!', 2, -1),
                  "MenuItem: only menus can be placed on the menu bar", -1);
    buildBoth();
    const std::size_t before = findWidgets("v_mitem").size();
    EXPECT_MISUSE(guiMenuItem(name, '!', 2, -1), "MenuItem: invalid name", -1);
    EXPECT_MISUSE(guiMenuItem("x", '!', 2, -7), "MenuItem: invalid command id -7", -1);
    EXPECT_MISUSE(guiMenuItem("x", '!', 2, 0), "MenuItem: invalid style for id 0", -1);
    EXPECT_MISUSE(guiMenuItem("x", '!', -1, 10), "MenuItem: invalid style for id 10", -1);
    EXPECT_MISUSE(guiMenuItem("x", '!', 1, 0), "MenuItem: command 0 must use plain style", -1);
    EXPECT_MISUSE(guiMenuItem("x", '!', 1, 10), "MenuItem: duplicate menu item id 10", -1);
    EXPECT_MISUSE(guiMenuItem("x", '!', 1, 20), "MenuItem: menu/toolbar style conflict for id 20",
                  -1);
    EXPECT_MISUSE(guiMenuItem("x", '!', 0, 21), "MenuItem: menu/toolbar style conflict for id 21",
                  -1);
    EXPECT_MISUSE(guiMenuItem("x", '!', 0, 20), "MenuItem: invalid accelerator for id 20", -1);
    EXPECT_MISUSE(guiMenuItem("x", '\xC4', 0, 0), "MenuItem: invalid accelerator for id 0", -1);
    EXPECT_EQ(findWidgets("v_mitem").size(), before);
    EXPECT_EQ(guiMenuItem("x", 'x', 0, 20), 3);
    EXPECT_EQ(guiMenuItem("x", 'x', 1, 21), 4);
    EXPECT_EQ(guiMenuItem("x", 'x', 0, 0x7FFFFFFF), 5);
}

GUI_STARTUP_TEST(MenuMisuse, OnTheMenuBarLevel)
{
    app.init();
    EXPECT_MISUSE(guiMenuEnd(), "MenuEnd: already on the menu bar level", -1);
    EXPECT_MISUSE(guiMenuSeparator(), "MenuSeparator: cannot be placed on the menu bar", -1);
    guiMenu("Menu");
    guiMenuEnd();
    EXPECT_MISUSE(guiMenuEnd(), "MenuEnd: already on the menu bar level", -1);
    EXPECT_FALSE(findWidget("v_msep"));
}

GUI_STARTUP_TEST(MenuMisuse, StateCallsWaitForTheStart)
{
    app.init();
    buildBoth();
    EXPECT_MISUSE(guiSetCommandCheck(11, 1), "SetCommandCheck: still in constructor", -1);
    EXPECT_MISUSE(guiEnableCommand(11, 0), "EnableCommand: still in constructor", -1);
    EXPECT_EQ(guiGetCommandCheck(11), -1);
    EXPECT_EQ(guiGetCommandCheck(10), -1);
    EXPECT_EQ(guiGetCommandCheck(99), -1);
    app.run([] {
        EXPECT_EQ(guiGetCommandCheck(11), 0);
        EXPECT_TRUE(XtIsSensitive(entry("Check")));
    });
}

// Also when everything else is wrong with them.
GUI_TEST(MenuMisuse, BuildingEndsWithTheStart)
{
    const std::string tooLong = longName();
    EXPECT_MISUSE(guiMenuItem(tooLong.c_str(), '!', 2, -1), "MenuItem: cannot be used now", -1);
    EXPECT_MISUSE(guiMenuSeparator(), "MenuSeparator: cannot be used now", -1);
    EXPECT_MISUSE(guiMenuEnd(), "MenuEnd: cannot be used now", -1);
    EXPECT_MISUSE(guiToolbarButton(nullptr, nullptr, 2, -1), "ToolbarButton: cannot be used now",
                  -1);
    EXPECT_MISUSE(guiToolbarSeparator(), "ToolbarSeparator: cannot be used now", -1);
}
