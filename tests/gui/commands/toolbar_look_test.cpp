// What the buttons look like, pixel by pixel; on screens of several depths.

#include <cstdlib>

#include "commands_support.h"

using namespace kite::testing;
using screen::Colour;

namespace {

constexpr int kSize = 21;
constexpr Point kImage{7, 6};  // in a button of 35 x 33

// As this screen shows it: a display of little depth has not got them all.
Colour onScreen(Colour colour)
{
    char name[8];
    std::snprintf(name, sizeof name, "#%02x%02x%02x", colour.red, colour.green, colour.blue);
    return screen::colourNamed(name);
}

Colour background()
{
    Widget const toolbar = findWidget("v_toolbar");
    return screen::colourOf(toolbar, resource<Pixel>(toolbar, XmNbackground));
}

Colour colourOf(Widget widget, const char* resourceName)
{
    return screen::colourOf(widget, resource<Pixel>(widget, resourceName));
}

// A screen of 16 bits a pixel rounds in more than one way.
bool isAlike(Colour a, Colour b)
{
    constexpr int kRounding = 2;
    return std::abs(a.red - b.red) <= kRounding && std::abs(a.green - b.green) <= kRounding &&
           std::abs(a.blue - b.blue) <= kRounding;
}

screen::Picture pictureOf(Widget button)
{
    EXPECT_TRUE(screen::waitUntilPainted(button));
    return screen::grab(button);
}

void expectImage(Widget button, bool isGreyed)
{
    const screen::Picture picture = pictureOf(button);
    ASSERT_EQ(picture.width(), 35);
    ASSERT_EQ(picture.height(), 33);
    const Colour behind = background();
    int wrong = 0;
    for (int y = 0; y < kSize; ++y)
        for (int x = 0; x < kSize; ++x) {
            const bool isCovered = isGreyed && x % 2 == y % 2;
            const Colour expected = isCovered ? behind : onScreen(quarters(x, y));
            if (!isAlike(picture.at(kImage.x + x, kImage.y + y), expected)) ++wrong;
        }
    EXPECT_EQ(wrong, 0) << "pixels";
}

// The edges of the button, from the corner inwards.
void expectEdges(Widget button, Colour topLeft, Colour bottomRight)
{
    const screen::Picture picture = pictureOf(button);
    for (int i = 0; i < 2; ++i) {
        EXPECT_PRED2(isAlike, picture.at(10, i), topLeft) << i;
        EXPECT_PRED2(isAlike, picture.at(i, 10), topLeft) << i;
        EXPECT_PRED2(isAlike, picture.at(10, 32 - i), bottomRight) << i;
        EXPECT_PRED2(isAlike, picture.at(34 - i, 10), bottomRight) << i;
    }
}

void expectFlat(Widget button)
{
    expectEdges(button, background(), background());
}

void expectRaised(Widget button)
{
    expectEdges(button, colourOf(button, XmNtopShadowColor),
                colourOf(button, XmNbottomShadowColor));
}

void expectPressedIn(Widget button)
{
    expectEdges(button, colourOf(button, XmNbottomShadowColor),
                colourOf(button, XmNtopShadowColor));
}

// Button 1 is plain, 2 a check.
void buildButtons()
{
    addImage("image");
    guiToolbarButton("image", nullptr, GUI_PLAIN, 1);
    guiToolbarButton("image", nullptr, GUI_CHECK, 2);
}

}  // namespace

GUI_STARTUP_TEST(ToolbarLook, PlainButtonsAreFlat)
{
    buildThenRun(buildButtons, [&] {
        Widget const button = toolbarButtons().front();
        expectImage(button, false);
        expectFlat(button);
        guiEnableCommand(1, 0);
        expectImage(button, true);
        expectFlat(button);
        guiEnableCommand(1, 1);
        expectImage(button, false);
    });
}

GUI_STARTUP_TEST(ToolbarLook, CheckButtonsArePressedInWhenSet)
{
    buildThenRun(buildButtons, [&] {
        Widget const button = toolbarButtons().back();
        expectImage(button, false);
        expectRaised(button);
        guiSetCommandCheck(2, 1);
        expectImage(button, false);
        expectPressedIn(button);
        guiEnableCommand(2, 0);
        expectImage(button, true);
        expectPressedIn(button);
        guiSetCommandCheck(2, 0);
        expectImage(button, true);
        expectRaised(button);
    });
}

GUI_STARTUP_TEST(ToolbarLook, StyleOfTheUsersChoice)
{
    host.profile().setInt("tbbstyle", 1);
    buildThenRun(buildButtons, [&] {
        Widget const button = toolbarButtons().front();
        expectImage(button, false);
        expectRaised(button);
        robot.moveTo(button);
        robot.press();
        settle();
        expectPressedIn(button);
        robot.release();
        settle();
        expectRaised(button);
    });
}

// What the image does not hold is the toolbar's background.
GUI_STARTUP_TEST(ToolbarLook, AroundTheImageIsTheToolbar)
{
    buildThenRun(buildButtons, [&] {
        const screen::Picture picture = pictureOf(toolbarButtons().front());
        const Colour behind = background();
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x) {
                const bool isInImage = Rect{kImage.x, kImage.y, kSize, kSize}.contains({x, y});
                ASSERT_EQ(isAlike(picture.at(x, y), behind), !isInImage) << x << ' ' << y;
            }
    });
}
