#include <gtest/gtest.h>

#include "window_manager.h"

#include <X11/Xutil.h>

#include <algorithm>

#include "connection.h"
#include "decoration.h"
#include "pump.h"
#include "robot.h"
#include "toolkit.h"
#include "widgets.h"
#include "window_properties.h"

namespace kite::testing::wm {

namespace {

bool isOurs(Client client)
{
    return toolkit::display() && XtWindowToWidget(toolkit::display(), client.window);
}

void awaitCloseRequest(Client client, int before)
{
    if (!isOurs(client)) return;
    if (!pumpUntil([&] { return toolkit::received(ClientMessage) > before; }))
        ADD_FAILURE() << "The close request has not reached the application.";
}

// A message to the root window, as pagers and taskbars send it.
void askManager(Client client, const char* message, long first, long second = 0)
{
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = client.window;
    event.xclient.message_type = atom(message);
    event.xclient.format = 32;
    event.xclient.data.l[0] = first;
    event.xclient.data.l[1] = second;
    XSendEvent(connection(), rootWindow(), False, SubstructureRedirectMask | SubstructureNotifyMask,
               &event);
    XSync(connection(), False);
}

// Clicks there until it is done: mwm, still busy with something else, loses a click now and then.
bool clickUntil(Point place, const Condition& isDone)
{
    constexpr int kMostClicks = 5;
    constexpr seconds kTimeToReact{1};
    for (int i = 0; i < kMostClicks; ++i) {
        Robot::instance().moveTo(place);
        Robot::instance().click();
        if (pumpUntil(isDone, kTimeToReact * kSlowness)) return true;
    }
    return false;
}

// By the button of the window menu. Returns the menu's window, or 0.
Window showMwmMenu(Client client, Point button)
{
    const Point inMenu = clientRect(client).corner() + Point{8, 8};
    const auto outermost = [&] {
        const std::vector<Window> windows = windowsAt(inMenu);
        return windows.empty() ? 0 : windows.front();
    };
    const Window covered = outermost();
    if (clickUntil(button, [&] { return outermost() != covered; })) return outermost();
    ADD_FAILURE() << "The window menu is not shown.";
    return 0;
}

// The menu's last item closes.
void closeByMwmMenu(Client client, Point button)
{
    const Window menu = showMwmMenu(client, button);
    if (!menu) return;
    const Rect rect = rectOnScreen(menu);
    constexpr int kToLastItem = 10;  // pixels from the lower edge
    const Point lastItem{rect.centre().x, rect.bottom() - kToLastItem};
    if (!clickUntil(lastItem, [=] { return !isViewable(menu); }))
        ADD_FAILURE() << "The window menu does not go.";
}

// A Motif shell asks for keys when it has heard that it has the focus: what is typed before goes nowhere.
bool takesKeys(Window window)
{
    XWindowAttributes attributes{};
    return XGetWindowAttributes(connection(), window, &attributes) &&
           (attributes.all_event_masks & KeyPressMask);
}

bool isOverrideRedirect(Window window)
{
    XWindowAttributes attributes{};
    XGetWindowAttributes(connection(), window, &attributes);
    return attributes.override_redirect;
}

void collectWindows(Window from, const std::string& title, std::vector<Window>& found)
{
    for (const Window child : childrenOf(from)) {
        if (nameOf(child) == title && isViewable(child)) found.push_back(child);
        collectWindows(child, title, found);
    }
}

}  // namespace

Kind kind()
{
    if (!itemsOf(rootWindow(), "_MOTIF_WM_INFO").empty()) return Kind::Mwm;
    const auto check = itemsOf(rootWindow(), "_NET_SUPPORTING_WM_CHECK");
    if (check.empty()) return Kind::NoManager;
    return netNameOf(check.front()) == "Openbox" ? Kind::Openbox : Kind::Other;
}

Client::Client(Widget widget) : window(windowOf(shellOf(widget))) {}

State stateOf(Client client)
{
    const auto items = itemsOf(client.window, "WM_STATE");
    if (items.empty() || items.front() == WithdrawnState) return State::Withdrawn;
    return items.front() == IconicState ? State::Iconic : State::Normal;
}

bool isSettled(Client client)
{
    if (!isViewable(client.window)) return false;
    if (kind() == Kind::NoManager || isOverrideRedirect(client.window)) return true;
    return stateOf(client) == State::Normal;
}

bool waitUntilSettled(Client client)
{
    return pumpUntil([&] { return isSettled(client); });
}

bool hasFocus(Client client)
{
    Window focus = 0;
    int revertTo = 0;
    XGetInputFocus(connection(), &focus, &revertTo);
    // None and PointerRoot are no windows.
    for (; focus > PointerRoot && focus != rootWindow(); focus = parentOf(focus))
        if (focus == client.window) return true;
    return false;
}

bool waitForFocus(Client client)
{
    if (kind() == Kind::NoManager && isViewable(client.window))
        XSetInputFocus(connection(), client.window, RevertToPointerRoot, CurrentTime);
    constexpr int kMostTries = 10;
    for (int i = 0; i < kMostTries; ++i) {
        if (!pumpUntil([&] { return hasFocus(client) && takesKeys(client.window); })) return false;
        awaitManager();
        if (hasFocus(client)) return true;
    }
    return false;
}

// It is asked, in order, about every window that wants to be elsewhere, also one that is not shown.
void awaitManager()
{
    settle();  // what the application has not sent yet, the manager has not been told
    if (kind() == Kind::NoManager) return;
    static const Window probe =
        XCreateSimpleWindow(connection(), rootWindow(), 0, 0, 1, 1, 0, 0, 0);
    static int x = 0;
    XSelectInput(connection(), probe, StructureNotifyMask);
    XMoveWindow(connection(), probe, ++x % 2, 0);
    const bool isAnswered = pumpUntil([] {
        XEvent event;
        return XCheckTypedWindowEvent(connection(), probe, ConfigureNotify, &event);
    });
    EXPECT_TRUE(isAnswered) << "The window manager does not answer.";
}

Window frameOf(Client client)
{
    Window window = client.window;
    for (Window parent = parentOf(window); parent && parent != rootWindow();
         parent = parentOf(window))
        window = parent;
    return window;
}

Rect frameRect(Client client)
{
    return rectOnScreen(frameOf(client));
}

Rect clientRect(Client client)
{
    return rectOnScreen(client.window);
}

void close(Client client)
{
    waitUntilSettled(client);
    const int before = toolkit::received(ClientMessage);
    if (kind() == Kind::Mwm) return closeByDecoration(client);
    if (kind() != Kind::Openbox) return requestClose(client);
    constexpr long kFromPager = 2;
    askManager(client, "_NET_CLOSE_WINDOW", CurrentTime, kFromPager);
    awaitCloseRequest(client, before);
}

void closeByDecoration(Client client)
{
    waitUntilSettled(client);
    const bool isMwm = kind() == Kind::Mwm;
    const std::optional<Point> button = isMwm ? menuButton(client) : closeButton(client);
    if (!button) return requestClose(client);
    const int before = toolkit::received(ClientMessage);
    if (isMwm) {
        closeByMwmMenu(client, *button);
    } else {
        Robot::instance().moveTo(*button);
        Robot::instance().click();
    }
    awaitCloseRequest(client, before);
}

void requestClose(Client client)
{
    const int before = toolkit::received(ClientMessage);
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = client.window;
    event.xclient.message_type = atom("WM_PROTOCOLS");
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(atom("WM_DELETE_WINDOW"));
    event.xclient.data.l[1] = CurrentTime;
    XSendEvent(connection(), client.window, False, NoEventMask, &event);
    XSync(connection(), False);
    awaitCloseRequest(client, before);
}

void iconify(Client client)
{
    askManager(client, "WM_CHANGE_STATE", IconicState);
}

void iconifyByDecoration(Client client)
{
    waitUntilSettled(client);
    const std::optional<Point> button = iconifyButton(client);
    if (!button) {
        ADD_FAILURE() << "The window has no button to iconify it.";
        return;
    }
    Robot::instance().moveTo(*button);
    Robot::instance().click();
}

void deiconify(Client client)
{
    XMapWindow(connection(), client.window);
    XSync(connection(), False);
}

void activate(Client client)
{
    if (kind() == Kind::Openbox) {
        constexpr long kFromPager = 2;
        return askManager(client, "_NET_ACTIVE_WINDOW", kFromPager);
    }
    if (const std::optional<Point> title = titleBar(client)) {
        Robot::instance().moveTo(*title);
        Robot::instance().click();
    }
}

void moveTo(Client client, Point frameCorner)
{
    waitUntilSettled(client);
    const std::optional<Point> title = titleBar(client);
    if (!title) {
        ADD_FAILURE() << "The window has no title bar to drag.";
        return;
    }
    const Rect start = frameRect(client);
    const Point way{frameCorner.x - start.x, frameCorner.y - start.y};
    Robot& robot = Robot::instance();
    robot.moveTo(*title);
    robot.press();
    // A manager takes the pointer only when the drag has begun; what is moved before goes unheeded.
    bool isNear = false;
    const bool hasBegun = pumpUntil([&] {
        isNear = !isNear;
        robot.moveTo(*title + (isNear ? Point{8, 8} : Point{12, 12}));
        return frameRect(client) != start;
    });
    EXPECT_TRUE(hasBegun) << "The window manager does not move the window.";
    robot.moveTo(*title + way);
    constexpr seconds kTimeToFollow{1};  // unless the manager stops it on the way
    pumpUntil([&] { return frameRect(client) == start.movedBy(way); }, kTimeToFollow * kSlowness);
    robot.release();
    awaitManager();  // until it lets go of the pointer
}

Window waitForWindow(const std::string& title)
{
    std::vector<Window> found;
    pumpUntil([&] {
        collectWindows(rootWindow(), title, found);
        return !found.empty();
    });
    return found.empty() ? 0 : found.front();
}

}  // namespace kite::testing::wm
