#include "monkey.h"

#include <thread>

#include "connection.h"
#include "window_manager.h"

namespace kite::testing {

namespace {

constexpr KeySym kKeys[] = {
    XK_Return, XK_Escape, XK_Tab,   XK_space, XK_Up,     XK_Down,      XK_Left,   XK_Right,
    XK_Home,   XK_End,    XK_Prior, XK_Next,  XK_Delete, XK_BackSpace, XK_Insert, XK_F1,
    XK_F2,     XK_F3,     XK_F4,    XK_F5,    XK_F6,     XK_F7,        XK_F8,     XK_F9,
    XK_F10,    XK_F11,    XK_F12,   XK_Menu,  XK_a,      XK_b,         XK_c,      XK_d,
    XK_e,      XK_f,      XK_g,     XK_h,     XK_i,      XK_j,         XK_k,      XK_l,
    XK_m,      XK_n,      XK_o,     XK_p,     XK_r,      XK_s,         XK_t,      XK_u,
    XK_v,      XK_w,      XK_x,     XK_y,     XK_z,      XK_1,         XK_5,      XK_9};

constexpr const char* kWords[] = {"kite", "12", "-7", "3.5", "a text.txt", "letters/", "..", "x"};

template <typename T, std::size_t N>
const T& pick(const T (&all)[N], int number)
{
    return all[static_cast<std::size_t>(number) % N];
}

// Nobody types faster; and the program can follow, so that what is done is done to what is seen.
void pause()
{
    std::this_thread::sleep_for(std::chrono::milliseconds{3});
}

}  // namespace

void Monkey::note(const std::string& what)
{
    constexpr std::size_t kMost = 12;
    notes_.push_back(what);
    if (notes_.size() > kMost) notes_.pop_front();
}

std::string Monkey::latest() const
{
    std::string all;
    for (const std::string& what : notes_) all += what + "; ";
    return all;
}

Point Monkey::somewhere()
{
    const Rect screen = rectOnScreen(rootWindow());
    return {upTo(screen.width - 1), upTo(screen.height - 1)};
}

// Where the tour is: the window manager and its menus are left alone.
bool Monkey::aim()
{
    constexpr int kMostTries = 20;
    for (int i = 0; i < kMostTries; ++i) {
        const Point place = somewhere();
        const auto windows = windowsAt(place);
        if (windows.empty() || !tour_.owns(windows.back())) continue;
        Robot::instance().moveTo(place);
        note("at " + std::to_string(place.x) + ", " + std::to_string(place.y));
        return true;
    }
    return false;
}

// Alt takes the keys F4 to F10 to the window manager.
void Monkey::pressKey()
{
    constexpr unsigned kModifiers[] = {NoModifier, NoModifier, NoModifier, Shift,
                                       Control,    Control,    Alt,        Control | Shift};
    const KeySym symbol = pick(kKeys, upTo(1000));
    const bool isFunctionKey = symbol >= XK_F1 && symbol <= XK_F12;
    const unsigned modifiers = pick(kModifiers, upTo(1000));
    const unsigned held = isFunctionKey ? modifiers & ~unsigned{Alt} : modifiers;
    note("key " + std::string{XKeysymToString(symbol)} + " with " + std::to_string(held));
    Robot::instance().key(symbol, held);
}

void Monkey::typeWord()
{
    const std::string word = pick(kWords, upTo(1000));
    note("\"" + word + "\"");
    Robot::instance().type(word);
}

void Monkey::click()
{
    constexpr unsigned kButtons[] = {LeftButton, LeftButton, LeftButton, RightButton, RightButton};
    if (!aim()) return;
    const unsigned button = pick(kButtons, upTo(1000));
    const int clicks = upTo(3) == 0 ? 2 : 1;
    note("click " + std::to_string(button) + ", " + std::to_string(clicks) + " times");
    for (int click = 0; click < clicks; ++click) {
        Robot::instance().press(button);
        Robot::instance().release(button);
    }
}

void Monkey::drag()
{
    if (!aim()) return;
    note("drag");
    Robot::instance().press();
    for (int step = upTo(4); step >= 0; --step) {
        Robot::instance().moveTo(somewhere());
        pause();
    }
    Robot::instance().release();
}

void Monkey::turnWheel()
{
    if (aim()) Robot::instance().wheel(upTo(4) - 2);
}

void Monkey::closeWindow()
{
    const auto windows = windowsAt(somewhere());
    for (const Window window : windows)
        if (tour_.owns(window)) {
            note("close");
            return wm::requestClose(window);
        }
}

void Monkey::act()
{
    if (!tour_.isRunning()) {
        tour_.expectCleanEnd();
        if (!tour_.start()) return;
    }
    const int kind = upTo(99);
    if (kind < 45)
        pressKey();
    else if (kind < 52)
        typeWord();
    else if (kind < 85)
        click();
    else if (kind < 93)
        drag();
    else if (kind < 97)
        turnWheel();
    else if (kind < 99)
        closeWindow();
    else if (!isViewable(tour_.frame()))
        wm::deiconify(tour_.frame());
    pause();
}

}  // namespace kite::testing
