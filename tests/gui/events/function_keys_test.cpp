// Keys in the Output area: F1 to F12 are commands, all others are for the text.

#include <Xm/Text.h>

#include "events_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

void expectAllFunctionKeys(unsigned modifiers)
{
    Recorder& recorder = Recorder::instance();
    for (int number = 1; number <= 12; ++number) {
        SCOPED_TRACE(number);
        recorder.clear();
        App::instance().key(XK_F1 + static_cast<KeySym>(number) - 1, modifiers);
        EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, -number, 0, 0)));
    }
}

struct Stroke {
    const char* name;
    KeySym symbol;
    unsigned modifiers = NoModifier;
};

constexpr Stroke kOtherKeys[] = {
    {"F13", XK_F13},
    {"F35", XK_F35},
    {"keypad =, the symbol before F1", XK_KP_Equal},
    {"keypad F1", XK_KP_F1},
    {"Escape", XK_Escape},
    {"Tab", XK_Tab},
    {"Return", XK_Return},
    {"BackSpace", XK_BackSpace},
    {"Delete", XK_Delete},
    {"Insert", XK_Insert},
    {"Home", XK_Home},
    {"End", XK_End},
    {"Page Up", XK_Page_Up},
    {"Page Down", XK_Page_Down},
    {"Up", XK_Up},
    {"Down", XK_Down},
    {"Left", XK_Left},
    {"Right", XK_Right},
    {"Control", XK_Control_L},
    {"Shift", XK_Shift_L},
    {"Alt", XK_Alt_L},
    {"Num Lock", XK_Num_Lock},
    {"Control+C", XK_c, Control},
    {"Alt+X", XK_x, Alt},
    {"Control+Alt+Q", XK_q, Control | Alt},
    {"Control+Home", XK_Home, Control},
};

}  // namespace

GUI_TEST(FunctionKeys, RaiseTheirCommands)
{
    expectAllFunctionKeys(NoModifier);
}

GUI_TEST(FunctionKeys, RaiseTheirCommandsWithShift)
{
    expectAllFunctionKeys(Shift);
}

GUI_TEST(FunctionKeys, RaiseTheirCommandsWithControl)
{
    expectAllFunctionKeys(Control);
}

GUI_TEST(FunctionKeys, RaiseTheirCommandsWithAlt)
{
    expectAllFunctionKeys(Alt);
}

GUI_TEST(FunctionKeys, RaiseTheirCommandsWithAllModifiers)
{
    expectAllFunctionKeys(Shift | Control | Alt);
}

GUI_STARTUP_TEST(FunctionKeys, GoToTheHostCallbackWithoutWindowHandler)
{
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.clear();
        app.key(XK_F1);
        EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_COMMAND, -1)));
    });
}

GUI_TEST(FunctionKeys, RaiseOneEventForEachPress)
{
    recorder.clear();
    for (int i = 0; i < 3; ++i) app.key(XK_F7);
    const Event seven = toWindow(GUI_EVENT_COMMAND, -7);
    EXPECT_THAT(recorder.events(), ElementsAre(seven, seven, seven));
}

GUI_TEST(FunctionKeys, PutNothingIntoTheText)
{
    for (int number = 1; number <= 12; ++number) app.key(XK_F1 + static_cast<KeySym>(number) - 1);
    EXPECT_EQ(textOf(app.find("v_text")), "");
    app.type("still here");
    EXPECT_EQ(textOf(app.find("v_text")), "still here");
}

GUI_TEST(FunctionKeys, DoNothingInABox)
{
    recorder.clear();
    app.whenShown("v_promptbox", [&](Shown box) {
        box.key(XK_F2);
        box.key(XK_F5);
        EXPECT_THAT(recorder.events(), IsEmpty());
        box.key(XK_Return);
    });
    char answer[20] = "";
    EXPECT_EQ(guiGetTextBox("Which?", answer, sizeof answer, 0), 0);
    EXPECT_THAT(recorder.events(), IsEmpty());
}

GUI_TEST(OutputKeys, RaiseNoEvents)
{
    for (const Stroke& stroke : kOtherKeys) {
        SCOPED_TRACE(stroke.name);
        recorder.clear();
        app.key(stroke.symbol, stroke.modifiers);
        EXPECT_THAT(recorder.events(), IsEmpty());
    }
}

GUI_TEST(OutputKeys, TypedTextArrives)
{
    recorder.clear();
    app.type("Hello, World! 0123 {}[]\nsecond line");
    EXPECT_EQ(textOf(app.find("v_text")), "Hello, World! 0123 {}[]\nsecond line");
    EXPECT_THAT(recorder.events(), IsEmpty());
}

GUI_TEST(OutputKeys, EditTheText)
{
    app.type("one");
    app.key(XK_BackSpace);
    app.key(XK_Home);
    app.key(XK_Delete);
    app.type("X");
    EXPECT_EQ(textOf(app.find("v_text")), "Xn");
}
