// Keys that the host hears of in lists, choices and combo boxes.

#include "list_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

namespace {

enum Id { kList = 1, kChoice, kCombo };

struct Taker {
    Id id;
    std::string name;
    bool takesEditing;  // Delete, Insert and BackSpace
};

// In each control, the keyboard there. Without items the keys of the controls themselves do nothing.
void inEachControl(const std::function<void(Shown, const Taker&)>& use)
{
    static const std::vector<Taker> takers{
        {kList, "list", true}, {kChoice, "choice", true}, {kCombo, "combo box", false}};
    runDialog({.build =
                   [] {
                       guiList(kList, 0, 3, 0, 60, GUI_BROWSE);
                       guiChoice(kChoice, 3, 0, 60);
                       guiCombo(kCombo, 4, 0, 60);
                   },
               .use =
                   [&](Shown dialog) {
                       for (const Taker& taker : takers) {
                           SCOPED_TRACE(taker.name);
                           Widget const part =
                               taker.id == kList ? listOf(kList) : fieldOf(taker.id);
                           Robot::instance().click(part);
                           ASSERT_TRUE(hasFocus(part));
                           use(dialog, taker);
                       }
                   }});
}

std::vector<Event> keysHeard(Shown dialog, KeySym symbol, unsigned modifiers = NoModifier)
{
    return only(GUI_EVENT_KEY, eventsDuring([&] { dialog.key(symbol, modifiers); }));
}

Event key(int code, int control = 0)
{
    return toDialog(GUI_EVENT_KEY, -1, code, control);
}

struct SpecialKey {
    KeySym symbol;
    int code;
};
constexpr SpecialKey kEditing[] = {{XK_Delete, GUI_KEY_DELETE},
                                   {XK_KP_Delete, GUI_KEY_DELETE},
                                   {XK_Insert, GUI_KEY_INSERT},
                                   {XK_BackSpace, GUI_KEY_BACKSPACE}};

}  // namespace

GUI_TEST(ListKeys, FunctionKeysAreHeardInEachOfThem)
{
    inEachControl([](Shown dialog, const Taker&) {
        for (int number = 1; number <= 12; ++number) {
            const KeySym symbol = XK_F1 + static_cast<KeySym>(number) - 1;
            EXPECT_THAT(keysHeard(dialog, symbol), ElementsAre(key(number))) << "F" << number;
        }
        EXPECT_THAT(keysHeard(dialog, XK_F5, Control), ElementsAre(key(5, 1)));
        EXPECT_THAT(keysHeard(dialog, XK_F5, Shift), ElementsAre(key(5, 0)));
    });
}

GUI_TEST(ListKeys, EditingKeysAreHeardInListsAndChoices)
{
    inEachControl([](Shown dialog, const Taker& taker) {
        for (const SpecialKey& special : kEditing)
            for (const unsigned modifiers : {unsigned{NoModifier}, unsigned{Control}}) {
                SCOPED_TRACE(XKeysymToString(special.symbol));
                std::vector<Event> expected;
                if (taker.takesEditing) expected.push_back(key(special.code, modifiers == Control));
                EXPECT_EQ(keysHeard(dialog, special.symbol, modifiers), expected);
            }
    });
}

GUI_TEST(ListKeys, ArrowsAndOthersAreNotHeard)
{
    inEachControl([](Shown dialog, const Taker&) {
        for (const KeySym symbol :
             {XK_Up, XK_Down, XK_Left, XK_Right, XK_KP_Up, XK_KP_Down, XK_KP_Left, XK_KP_Right,
              XK_Home, XK_End, XK_Page_Up, XK_Page_Down, XK_Return, XK_space, XK_a, XK_Shift_L})
            EXPECT_THAT(keysHeard(dialog, symbol), IsEmpty()) << XKeysymToString(symbol);
        EXPECT_THAT(keysHeard(dialog, XK_b, Control), IsEmpty());
    });
}

GUI_TEST(ListKeys, F1AsksForHelpOnTheControl)
{
    inEachControl([](Shown dialog, const Taker& taker) {
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_F1); }),
                    UnorderedElementsAre(key(1), toDialog(GUI_EVENT_HELP, taker.id)));
    });
}
