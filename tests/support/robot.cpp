#include <gtest/gtest.h>

#include "robot.h"

#include <X11/extensions/XTest.h>

#include <algorithm>
#include <cstdlib>

#include "click_spacing.h"
#include "connection.h"
#include "keyboard_map.h"
#include "pump.h"
#include "toolkit.h"
#include "widgets.h"

namespace kite::testing {

namespace {

constexpr int kDragSteps = 8;  // enough for every program to notice a drag
constexpr unsigned long kBetweenKeys =
    1;  // milliseconds: Motif's menus take keys of the same one for one key
constexpr unsigned long kBetweenClicks = 20;  // milliseconds, of a double click
constexpr milliseconds kReleaseTime{500};     // a release is lost when its window goes: no failure

struct ModifierKey {
    unsigned modifier;
    KeySym symbol;
};
constexpr ModifierKey kModifierKeys[] = {
    {Shift, XK_Shift_L}, {Control, XK_Control_L}, {Alt, XK_Alt_L}};

void sync()
{
    XSync(connection(), False);
}

void fakeKey(KeyCode code, bool isDown, unsigned long after = 0)
{
    XTestFakeKeyEvent(connection(), code, isDown, after);
}

void fakeButton(unsigned button, bool isDown, unsigned long after = 0)
{
    XTestFakeButtonEvent(connection(), button, isDown, after);
}

void fakeModifiers(unsigned modifiers, bool areDown)
{
    for (const ModifierKey& key : kModifierKeys)
        if (modifiers & key.modifier) fakeKey(keyFor(key.symbol).code, areDown);
}

void fakeStroke(KeySym symbol, unsigned modifiers)
{
    const Key key = keyFor(symbol);
    if (!key.code) {
        ADD_FAILURE() << "No key is left for the symbol 0x" << std::hex << symbol;
        return;
    }
    const unsigned all = modifiers | (key.shift ? unsigned{Shift} : 0);
    fakeModifiers(all, true);
    fakeKey(key.code, true, kBetweenKeys);
    fakeKey(key.code, false);
    fakeModifiers(all, false);
}

// True when a click at the point goes to the widget: nothing lies over it.
bool isUncovered(Widget widget, Point point)
{
    return std::ranges::count(windowsAt(point), windowOf(widget)) > 0;
}

bool isOurs(Point point)
{
    const std::vector<Window> windows = windowsAt(point);
    Display* const display = toolkit::display();
    return display && !windows.empty() && XtWindowToWidget(display, windows.back());
}

std::string describe(Widget widget)
{
    return std::string{"widget \""} + XtName(widget) + "\"";
}

}  // namespace

Robot& Robot::instance()
{
    static Robot robot;
    return robot;
}

void Robot::moveTo(Point onScreen)
{
    XTestFakeMotionEvent(connection(), DefaultScreen(connection()), onScreen.x, onScreen.y,
                         CurrentTime);
    sync();
}

bool Robot::aimAt(Widget widget, std::optional<Point> offset)
{
    if (!widget) {
        ADD_FAILURE() << "There is no widget to point at.";
        return false;
    }
    if (!pumpUntil([&] { return isShown(widget); })) {
        ADD_FAILURE() << "The " << describe(widget) << " is not shown.";
        return false;
    }
    const auto spot = [&] {
        const Rect rect = rectOf(widget);
        return offset ? Point{rect.x, rect.y} + *offset : rect.centre();
    };
    if (!pumpUntil([&] { return isUncovered(widget, spot()); })) {
        ADD_FAILURE() << "Something covers the " << describe(widget) << " at " << spot();
        return false;
    }
    moveTo(spot());
    return true;
}

void Robot::moveTo(Widget widget, std::optional<Point> offset)
{
    if (aimAt(widget, offset)) settle();
}

void Robot::press(unsigned button)
{
    awaitEndOfClick(button);
    fakeButton(button, true);
    sync();
}

void Robot::release(unsigned button)
{
    fakeButton(button, false);
    sync();
    rememberClick(button);
}

void Robot::clickTimes(int times, unsigned button)
{
    awaitEndOfClick(button);
    for (int i = 0; i < times; ++i) {
        // Presses of one millisecond are one press to some widgets.
        fakeButton(button, true, i > 0 ? kBetweenClicks : 0);
        fakeButton(button, false);
    }
    sync();
    rememberClick(button);
}

void Robot::click(unsigned button)
{
    clickTimes(1, button);
}

void Robot::doubleClick(unsigned button)
{
    clickTimes(2, button);
}

void Robot::wheel(int notches)
{
    for (int i = 0; i < std::abs(notches); ++i) click(notches > 0 ? WheelDown : WheelUp);
}

void Robot::clickHandled(Widget widget, int times, unsigned button, std::optional<Point> offset)
{
    if (!aimAt(widget, offset)) return;
    const std::string name = describe(widget);
    const Window window = windowOf(widget);
    awaitEndOfClick(button);
    const int pressed = toolkit::received(ButtonPress) + times;
    const int released = toolkit::received(ButtonRelease) + times;
    clickTimes(times, button);
    if (!pumpUntil(
            [&] { return toolkit::received(ButtonPress) >= pressed || !isViewable(window); }))
        ADD_FAILURE() << "The click on the " << name << " has not reached the application.";
    pumpUntil([&] { return toolkit::received(ButtonRelease) >= released || !isViewable(window); },
              kReleaseTime);
    settle();
}

void Robot::click(Widget widget, unsigned button, std::optional<Point> offset)
{
    clickHandled(widget, 1, button, offset);
}

void Robot::doubleClick(Widget widget, unsigned button, std::optional<Point> offset)
{
    clickHandled(widget, 2, button, offset);
}

void Robot::wheel(Widget widget, int notches)
{
    for (int i = 0; i < std::abs(notches); ++i) click(widget, notches > 0 ? WheelDown : WheelUp);
}

void Robot::drag(Point from, Point to, unsigned button)
{
    const int pressed = toolkit::received(ButtonPress);
    const int released = toolkit::received(ButtonRelease);
    moveTo(from);
    const bool isInOurs = isOurs(from);
    press(button);
    if (isInOurs && !pumpUntil([&] { return toolkit::received(ButtonPress) > pressed; }))
        ADD_FAILURE() << "The press at " << from << " has not reached the application.";
    for (int step = 1; step <= kDragSteps; ++step) {
        moveTo({from.x + (to.x - from.x) * step / kDragSteps,
                from.y + (to.y - from.y) * step / kDragSteps});
        settle();
    }
    release(button);
    // A drag and drop takes the mouse away from the application: its release comes to somebody else.
    if (isInOurs)
        pumpUntil([&] { return toolkit::received(ButtonRelease) > released; }, kReleaseTime);
    settle();
}

void Robot::key(KeySym symbol, unsigned modifiers)
{
    fakeStroke(symbol, modifiers);
    sync();
}

void Robot::type(std::string_view utf8)
{
    for (const KeySym symbol : symbolsOf(utf8)) fakeStroke(symbol, NoModifier);
    sync();
}

void Robot::keyDown(KeySym symbol)
{
    fakeKey(keyFor(symbol).code, true);
    sync();
}

void Robot::keyUp(KeySym symbol)
{
    fakeKey(keyFor(symbol).code, false);
    sync();
}

void Robot::keyHandled(KeySym symbol, unsigned modifiers)
{
    const int before = toolkit::received(KeyPress);
    key(symbol, modifiers);
    awaitKeys(before, 1);
}

void Robot::typeHandled(std::string_view utf8)
{
    const int before = toolkit::received(KeyPress);
    type(utf8);
    awaitKeys(before, static_cast<int>(symbolsOf(utf8).size()));
}

// Modifier keys count as well, but come first: at least this many have arrived, and the rest is waiting.
void Robot::awaitKeys(int before, int count)
{
    if (!pumpUntil([&] { return toolkit::received(KeyPress) >= before + count; }))
        ADD_FAILURE() << "The keys have not reached the application: who has the focus?";
    settle();
}

}  // namespace kite::testing
