// robot.h: a user at mouse and keyboard of the test's display.
//
// The input is real: it goes from the server to whatever window is there, through the window manager's
// grabs. It comes over a connection of its own. Calls that name a widget wait until the widget is shown
// and nothing covers the spot, and return when the application has taken the input from its queue and
// handled it. All others return when the server has taken it: go on with pumpUntil or settle().
//
// Two clicks in a row are two clicks: the robot waits out the double-click time. For a double click say
// doubleClick.

#pragma once

#include <X11/Intrinsic.h>
#include <X11/keysym.h>

#include <optional>
#include <string_view>

#include "geometry.h"

namespace kite::testing {

enum Modifier : unsigned { NoModifier = 0, Shift = 1, Control = 2, Alt = 4 };

enum Button : unsigned {
    LeftButton = 1,
    MiddleButton = 2,
    RightButton = 3,
    WheelUp = 4,
    WheelDown = 5
};

class Robot {
public:
    static Robot& instance();

    // The pointer, on the screen or within a widget (in the middle, without an offset).
    void moveTo(Point onScreen);
    void moveTo(Widget widget, std::optional<Point> offset = {});

    void press(unsigned button = LeftButton);
    void release(unsigned button = LeftButton);
    void click(unsigned button = LeftButton);
    void doubleClick(unsigned button = LeftButton);
    void wheel(int notches);  // positive: down

    void click(Widget widget, unsigned button = LeftButton, std::optional<Point> offset = {});
    void doubleClick(Widget widget, unsigned button = LeftButton, std::optional<Point> offset = {});
    void wheel(Widget widget, int notches);
    void drag(Point from, Point to, unsigned button = LeftButton);

    // The keyboard: goes to the window with the focus.
    void key(KeySym symbol, unsigned modifiers = NoModifier);
    void type(std::string_view utf8);
    void keyDown(KeySym symbol);
    void keyUp(KeySym symbol);

    // The same, and waits until the application has handled it.
    void keyHandled(KeySym symbol, unsigned modifiers = NoModifier);
    void typeHandled(std::string_view utf8);

private:
    Robot() = default;
    bool aimAt(Widget widget, std::optional<Point> offset);
    void clickTimes(int times, unsigned button);
    void clickHandled(Widget widget, int times, unsigned button, std::optional<Point> offset);
    void awaitKeys(int before, int count);
};

}  // namespace kite::testing
