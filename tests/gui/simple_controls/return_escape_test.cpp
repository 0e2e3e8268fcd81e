// Return presses the default button and Escape the cancel button, seen or not.

#include <Xm/Xm.h>

#include "simple_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

void buildAround(const std::function<void()>& buttons)
{
    guiEdit(1, 0, 0, 40, 0, 0);
    guiCheck(2, 1, 0, 40, "Check");
    guiRadio(3, 2, 0, 40, "Radio");
    buttons();
}

// With the keyboard in the edit, the check box and the radio button.
void expectFromEveryControl(Shown dialog, KeySym symbol, const std::vector<Event>& expected)
{
    for (int id = 1; id <= 3; ++id) {
        ASSERT_TRUE(hasFocus(id));
        EXPECT_EQ(eventsDuring([&] { dialog.key(symbol); }), expected) << "from control " << id;
        dialog.key(XK_Tab);
    }
}

}  // namespace

GUI_TEST(ReturnKey, PressesTheLastButtonMarkedAsDefault)
{
    runDialog(
        [] {
            buildAround([] {
                guiButton(7, 3, 0, 40, "Seven", 0);
                guiButton(8, 4, 0, 40, "Eight", 1);
                guiButton(9, 5, 0, 40, "Nine", 0);
            });
        },
        [](Shown dialog) {
            expectFromEveryControl(dialog, XK_Return, {toDialog(GUI_EVENT_COMMAND, 8)});
            dialog.key(XK_Tab);
        });

    runDialog(
        [] {
            buildAround([] {
                guiButton(7, 3, 0, 40, "Seven", 1);
                guiButton(8, 4, 0, 40, "Eight", -1);
                guiButton(9, 5, 0, 40, "Nine", 0);
            });
        },
        [](Shown dialog) {
            EXPECT_EQ(resource<Widget>(dialog.widget(), XmNdefaultButton), controlOf(8));
            EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Return); }),
                        ElementsAre(toDialog(GUI_EVENT_COMMAND, 8)));
        });
}

GUI_TEST(ReturnKey, PressesADefaultButtonOfNoWidth)
{
    runDialog([] { buildAround([] { guiButton(8, 3, 0, 0, "", 1); }); },
              [](Shown dialog) {
                  EXPECT_FALSE(isShown(controlOf(8)));
                  expectFromEveryControl(dialog, XK_Return, {toDialog(GUI_EVENT_COMMAND, 8)});
              });
}

GUI_TEST(ReturnKey, AndEscapeDoNothingWithoutTheirButtons)
{
    runDialog([] { buildAround([] { guiButton(8, 3, 0, 40, "Eight", 0); }); },
              [](Shown dialog) { expectFromEveryControl(dialog, XK_Return, {}); });

    runDialog([] { buildAround([] { guiButton(8, 3, 0, 40, "OK", 1); }); },
              [](Shown dialog) { expectFromEveryControl(dialog, XK_Escape, {}); });
}

// The keyboard is on another button: that one is meant.
GUI_TEST(ReturnKey, PressesTheButtonWithTheKeyboard)
{
    runDialog(
        [] {
            guiButton(7, 0, 0, 40, "Seven", 0);
            guiButton(8, 1, 0, 40, "Eight", 1);
        },
        [](Shown dialog) {
            ASSERT_TRUE(hasFocus(7));
            EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Return); }),
                        ElementsAre(toDialog(GUI_EVENT_COMMAND, 7)));
            dialog.key(XK_Tab);
            EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Return); }),
                        ElementsAre(toDialog(GUI_EVENT_COMMAND, 8)));
        });
}

GUI_TEST(EscapeKey, PressesTheButtonOfIdZero)
{
    runDialog(
        [] {
            buildAround([] {
                guiButton(8, 3, 0, 40, "OK", 1);
                guiButton(0, 4, 0, 40, "Cancel", 0);
            });
        },
        [](Shown dialog) {
            EXPECT_EQ(resource<Widget>(dialog.widget(), XmNcancelButton), controlOf(0));
            expectFromEveryControl(dialog, XK_Escape, {toDialog(GUI_EVENT_COMMAND, 0)});
        });
}

GUI_TEST(EscapeKey, PressesACancelButtonOfNoWidth)
{
    runDialog([] { buildAround([] { guiButton(0, 3, 0, 0, "Cancel", 0); }); },
              [](Shown dialog) {
                  EXPECT_FALSE(isShown(controlOf(0)));
                  expectFromEveryControl(dialog, XK_Escape, {toDialog(GUI_EVENT_COMMAND, 0)});
              });
}

// One invisible button may be both.
GUI_TEST(EscapeKey, AndReturnMayPressTheSameButton)
{
    runDialog([] { buildAround([] { guiButton(0, 3, 0, 0, "", 1); }); },
              [](Shown dialog) {
                  for (const KeySym symbol : {XK_Return, XK_Escape})
                      EXPECT_THAT(eventsDuring([&] { dialog.key(symbol); }),
                                  ElementsAre(toDialog(GUI_EVENT_COMMAND, 0)));
              });
}

// All buttons of a dialog with a default button are of the size they were made with, without room for
// the shadow around it.
GUI_TEST(DefaultButton, HasNoShadowAround)
{
    runDialog(
        [] {
            guiButton(7, 0, 0, 40, "Seven", 0);
            guiButton(8, 1, 0, 40, "Eight", 1);
            guiButton(0, 2, 0, 40, "Cancel", 0);
        },
        [](Shown) {
            for (const int id : {7, 8, 0})
                EXPECT_EQ(resource<Dimension>(controlOf(id), XmNdefaultButtonShadowThickness), 0)
                    << id;
        });
}
