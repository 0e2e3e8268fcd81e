// Keys that the host hears of: which, in which control, and with which modifiers.

#include "simple_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

enum Id { kEdit = 1, kButton, kCheck, kRadio, kImage };

struct Taker {
    Id id;
    std::string name;
    bool takesAll;  // not the function keys alone
};

const std::vector<Taker>& takers()
{
    static const std::vector<Taker> all{{kEdit, "edit", false},
                                        {kButton, "button", true},
                                        {kCheck, "check box", false},
                                        {kRadio, "radio button", false},
                                        {kImage, "image", true}};
    return all;
}

struct SpecialKey {
    KeySym symbol;
    const char* name;
    int code;
};

constexpr SpecialKey kSpecialKeys[] = {
    {XK_Up, "Up", 13},         {XK_KP_Up, "KP_Up", 13},
    {XK_Down, "Down", 14},     {XK_KP_Down, "KP_Down", 14},
    {XK_Left, "Left", 15},     {XK_KP_Left, "KP_Left", 15},
    {XK_Right, "Right", 16},   {XK_KP_Right, "KP_Right", 16},
    {XK_Delete, "Delete", 17}, {XK_KP_Delete, "KP_Delete", 17},
    {XK_Insert, "Insert", 18}, {XK_BackSpace, "BackSpace", 19},
};

// Keys that are nobody's, in any control.
constexpr KeySym kOtherKeys[] = {XK_Home,      XK_End,       XK_Page_Up,  XK_Page_Down,  XK_KP_Home,
                                 XK_KP_End,    XK_KP_Insert, XK_KP_Begin, XK_Pause,      XK_Print,
                                 XK_Num_Lock,  XK_Shift_L,   XK_Shift_R,  XK_Control_L,  XK_Alt_L,
                                 XK_Caps_Lock, XK_Super_L,   XK_F13,      XK_Mode_switch};

void build()
{
    guiEdit(kEdit, 0, 0, 60, 0, 0);
    guiButton(kButton, 1, 0, 60, "Button", 0);
    guiCheck(kCheck, 2, 0, 60, "Check");
    guiRadio(kRadio, 3, 0, 60, "Radio");
    guiImage(kImage, 4, 1, 0, 60, 1);
}

// In each control, the keyboard there.
void inEachControl(const std::function<void(Shown, const Taker&)>& use)
{
    runDialog(build, [&](Shown dialog) {
        for (const Taker& taker : takers()) {
            SCOPED_TRACE(taker.name);
            Robot::instance().click(controlOf(taker.id));
            ASSERT_TRUE(hasFocus(taker.id));
            use(dialog, taker);
        }
    });
}

// All that the host hears of; whether an edit's text changes is another matter.
std::vector<Event> keysHeard(Shown dialog, KeySym symbol, unsigned modifiers = NoModifier)
{
    const auto events = eventsDuring([&] { dialog.key(symbol, modifiers); });
    return without(GUI_EVENT_TEXT_CHANGED, without(GUI_EVENT_HELP, events));
}

Event key(int code, int control = 0)
{
    return toDialog(GUI_EVENT_KEY, -1, code, control);
}

}  // namespace

GUI_TEST(Keys, FunctionKeysAreHeardInEveryControl)
{
    inEachControl([](Shown dialog, const Taker&) {
        for (int number = 1; number <= 12; ++number)
            EXPECT_THAT(keysHeard(dialog, XK_F1 + static_cast<KeySym>(number) - 1),
                        ElementsAre(key(number)))
                << "F" << number;
    });

    inEachControl([](Shown dialog, const Taker&) {
        for (const int number : {2, 5, 9, 10, 12}) {
            SCOPED_TRACE(number);
            const KeySym symbol = XK_F1 + static_cast<KeySym>(number) - 1;
            EXPECT_THAT(keysHeard(dialog, symbol, Control), ElementsAre(key(number, 1)));
            EXPECT_THAT(keysHeard(dialog, symbol, Shift), ElementsAre(key(number, 0)));
            EXPECT_THAT(keysHeard(dialog, symbol, Control | Shift), ElementsAre(key(number, 1)));
        }
        EXPECT_THAT(keysHeard(dialog, XK_F11, Alt), ElementsAre(key(11, 0)));
    });
}

GUI_TEST(Keys, SpecialKeysAreHeardInButtonsAndImages)
{
    inEachControl([](Shown dialog, const Taker& taker) {
        for (const SpecialKey& special : kSpecialKeys)
            for (const unsigned modifier :
                 {unsigned{NoModifier}, unsigned{Shift}, unsigned{Control}}) {
                SCOPED_TRACE(special.name + (" with modifier " + std::to_string(modifier)));
                std::vector<Event> expected;
                if (taker.takesAll) expected.push_back(key(special.code, modifier == Control));
                EXPECT_EQ(keysHeard(dialog, special.symbol, modifier), expected);
                ASSERT_TRUE(hasFocus(taker.id));
            }
    });
}

GUI_TEST(Keys, OfTheKeypadAreDigitsWithNumLock)
{
    inEachControl([](Shown dialog, const Taker&) {
        dialog.key(XK_Num_Lock);
        for (const KeySym symbol : {XK_KP_Up, XK_KP_Left, XK_KP_Right, XK_KP_Down, XK_KP_Delete})
            EXPECT_THAT(keysHeard(dialog, symbol), IsEmpty()) << XKeysymToString(symbol);
        dialog.key(XK_Num_Lock);
    });
}

GUI_TEST(Keys, OthersAreNotHeard)
{
    inEachControl([](Shown dialog, const Taker&) {
        for (const KeySym symbol : kOtherKeys) {
            EXPECT_THAT(keysHeard(dialog, symbol), IsEmpty()) << XKeysymToString(symbol);
            if (symbol == XK_Num_Lock || symbol == XK_Caps_Lock) dialog.key(symbol);  // off again
        }
    });
}

GUI_TEST(Keys, ThatArePrintedAreNotHeardWithAnyModifier)
{
    inEachControl([](Shown dialog, const Taker&) {
        for (const char c : std::string{"aZ09.&~-"})
            EXPECT_THAT(without(GUI_EVENT_TEXT_CHANGED,
                                eventsDuring([&] { dialog.type(std::string(1, c)); })),
                        IsEmpty())
                << c;
        for (const KeySym symbol : {XK_adiaeresis, XK_KP_5, XK_KP_Add})
            EXPECT_THAT(keysHeard(dialog, symbol), IsEmpty()) << symbol;
    });

    inEachControl([](Shown dialog, const Taker&) {
        for (const KeySym symbol : {XK_a, XK_b, XK_q, XK_z, XK_1, XK_period})
            for (const unsigned modifiers : {unsigned{Control}, unsigned{Alt}})
                EXPECT_THAT(keysHeard(dialog, symbol, modifiers), IsEmpty())
                    << symbol << " with " << modifiers;
    });
}

// The toolkit's help key asks for help on the control that has the keyboard, and is a function key, too.
GUI_TEST(Keys, F1AsksForHelpOnTheControl)
{
    inEachControl([](Shown dialog, const Taker& taker) {
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_F1); }),
                    ::testing::UnorderedElementsAre(key(1), toDialog(GUI_EVENT_HELP, taker.id)));
    });

    inEachControl([](Shown dialog, const Taker&) {
        for (const KeySym symbol : {XK_F2, XK_F12})
            EXPECT_THAT(eventsDuring([&] { dialog.key(symbol); }),
                        ::testing::Not(
                            ::testing::Contains(::testing::Field(&Event::event, GUI_EVENT_HELP))));
    });
}

// The host may close the dialog, and with it the control whose key it was.
GUI_TEST(Keys, MayCloseTheDialog)
{
    for (const int code : {5, 1}) {
        ASSERT_EQ(guiDialog(""), 0);
        build();
        recorder.onEvent(GUI_EVENT_KEY, -1, [&] { guiClose(27); });
        app.whenShown("v_dlgbbr",
                      [&](Shown dialog) { dialog.key(XK_F1 + static_cast<KeySym>(code) - 1); });
        EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 27);
        EXPECT_FALSE(newestBoard());
    }
}
