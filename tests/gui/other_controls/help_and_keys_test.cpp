// Help and special keys in each kind of control.

#include "other_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

namespace {

constexpr Kind kWithKeyboard[] = {kText, kTree, kSpin, kSlider};

Event key(int code, int control = 0)
{
    return toDialog(GUI_EVENT_KEY, -1, code, control);
}

void inEachControl(const std::function<void(Shown, Kind)>& use)
{
    runFilled(
        makeAllKinds, [] { fillItems(kTree, 3); },
        [&](Shown dialog) {
            for (const Kind kind : kWithKeyboard) {
                SCOPED_TRACE(kind);
                guiSetFocus(kind);
                ASSERT_TRUE(waitForKeyboard(kind));
                use(dialog, kind);
            }
        });
}

}  // namespace

GUI_TEST(OtherControlKeys, FunctionKeysAreHeard)
{
    inEachControl([](Shown dialog, Kind) {
        for (int number = 2; number <= 12; ++number) {
            if (number == 4) continue;  // Alt and F4, for some window managers
            const KeySym symbol = XK_F1 + static_cast<KeySym>(number) - 1;
            EXPECT_THAT(eventsDuring([&] { dialog.key(symbol); }), ElementsAre(key(number)));
        }
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_F5, Control); }), ElementsAre(key(5, 1)));
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_F5, Shift); }), ElementsAre(key(5, 0)));
    });
}

// The control's own, where hosts of buttons and lists would hear of them.
GUI_TEST(OtherControlKeys, OthersAreNotHeard)
{
    inEachControl([](Shown dialog, Kind) {
        for (const KeySym symbol : {XK_Up, XK_Down, XK_Left, XK_Right, XK_Home, XK_End, XK_Insert,
                                    XK_a, XK_BackSpace, XK_b, XK_Home, XK_Delete})
            EXPECT_THAT(only(GUI_EVENT_KEY, eventsDuring([&] { dialog.key(symbol); })), IsEmpty())
                << XKeysymToString(symbol);
    });
}

// A function key as well.
GUI_TEST(OtherControlKeys, F1AsksForHelpOnTheControl)
{
    inEachControl([](Shown dialog, Kind kind) {
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_F1); }),
                    UnorderedElementsAre(key(1), toDialog(GUI_EVENT_HELP, kind)));
    });
}
