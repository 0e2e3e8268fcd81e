// Where the keyboard is: at first, and as the Tab key goes.

#include "simple_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

// The control that has the keyboard when the dialog comes up; -1 for none that has an id.
int firstFocus(const std::function<void()>& build)
{
    int focus = -1;
    runDialog(build, [&](Shown) { focus = guiGetFocus(); });
    return focus;
}

// Those that take no focus, in front of everything else.
void buildPassive()
{
    guiLabel(100, 0, 0, 40, "Label");
    guiLine(101, 1, 1, 0, 40);
    guiImage(102, 2, 1, 0, 40, 0);
}

std::vector<int> idsAlongTabs(Shown dialog, int steps, unsigned modifiers)
{
    std::vector<int> ids;
    for (int i = 0; i < steps; ++i) {
        dialog.key(XK_Tab, modifiers);
        ids.push_back(guiGetFocus());
    }
    return ids;
}

void buildOneOfEach()
{
    guiLabel(100, 0, 0, 40, "Label");
    guiLine(101, 1, 1, 0, 40);
    guiEdit(1, 0, 60, 40, 0, 0);
    guiButton(2, 1, 60, 40, "Button", 0);
    guiCheck(3, 2, 60, 40, "Check");
    guiRadio(4, 3, 60, 40, "Radio");
    guiRadio(5, 4, 60, 40, "Radio");
    guiEdit(6, 5, 60, 40, 0, 1);
}

}  // namespace

GUI_TEST(ControlFocus, IsFirstOnTheFirstControlThatTakesIt)
{
    const std::function<void()> takers[] = {
        [] { guiEdit(1, 3, 0, 40, 0, 0); },          [] { guiEdit(1, 3, 0, 40, 1, 1); },
        [] { guiButton(1, 3, 0, 40, "Button", 0); }, [] { guiCheck(1, 3, 0, 40, "Check"); },
        [] { guiRadio(1, 3, 0, 40, "Radio"); },
    };
    for (const auto& taker : takers) {
        SCOPED_TRACE(&taker - takers);
        EXPECT_EQ(firstFocus([&] {
                      buildPassive();
                      taker();
                      guiEdit(2, 4, 0, 40, 0, 0);
                      guiButton(3, 5, 0, 40, "Button", 1);
                  }),
                  1);
    }

    EXPECT_EQ(firstFocus([] {
                  guiButton(2, 5, 100, 40, "Button", 0);
                  guiEdit(1, 0, 0, 40, 0, 0);
              }),
              2);

    EXPECT_EQ(firstFocus([] {
                  guiEdit(1, 0, 0, 40, 0, 0);
                  XtSetSensitive(lastControl(), False);
                  guiCheck(2, 1, 0, 40, "Check");
              }),
              2);

    EXPECT_EQ(firstFocus([] {
                  guiLabel(100, 0, 0, 40, "Label");
                  guiLine(101, 1, 1, 0, 40);
              }),
              -1);
}

// An invisible button can have no keyboard, even when it is the first.
GUI_TEST(ControlFocus, PassesOverAButtonOfNoWidth)
{
    runDialog(
        [] {
            guiButton(9, 0, 0, 0, "", 1);
            guiEdit(1, 0, 0, 40, 0, 0);
            guiCheck(2, 1, 0, 40, "Check");
        },
        [](Shown dialog) {
            EXPECT_EQ(guiGetFocus(), 1);
            dialog.type("x");
            EXPECT_EQ(textOf(controlOf(1)), "x");
            EXPECT_THAT(idsAlongTabs(dialog, 4, NoModifier), ElementsAre(2, 1, 2, 1));
        });
}

GUI_TEST(ControlFocus, GoesWithTabInTheOrderOfCreation)
{
    runDialog(buildOneOfEach, [](Shown dialog) {
        EXPECT_EQ(guiGetFocus(), 1);
        EXPECT_THAT(idsAlongTabs(dialog, 7, NoModifier), ElementsAre(2, 3, 4, 5, 6, 1, 2));
    });

    runDialog(buildOneOfEach, [](Shown dialog) {
        EXPECT_EQ(guiGetFocus(), 1);
        EXPECT_THAT(idsAlongTabs(dialog, 7, Shift), ElementsAre(6, 5, 4, 3, 2, 1, 6));
    });

    runDialog(
        [] {
            guiCheck(1, 5, 80, 40, "One");
            guiCheck(2, 0, 0, 40, "Two");
            guiCheck(3, 3, 40, 40, "Three");
            guiCheck(4, 0, 80, 40, "Four");
        },
        [](Shown dialog) {
            EXPECT_THAT(idsAlongTabs(dialog, 4, NoModifier), ElementsAre(2, 3, 4, 1));
        });
}

// Each control is a stop of its own: arrow keys do not go from one to the next.
GUI_TEST(ControlFocus, StaysWithArrowKeys)
{
    runDialog(buildOneOfEach, [](Shown dialog) {
        for (int id = 1; id <= 6; ++id) {
            for (const KeySym arrow : {XK_Up, XK_Down, XK_Left, XK_Right}) {
                dialog.key(arrow);
                EXPECT_EQ(guiGetFocus(), id);
            }
            dialog.key(XK_Tab);
        }
    });
}

GUI_TEST(ControlFocus, GoesWhereTheMouseClicks)
{
    runDialog(buildOneOfEach, [this](Shown) {
        for (const int id : {6, 5, 4, 3, 2, 1}) {
            robot.click(controlOf(id));
            EXPECT_EQ(guiGetFocus(), id);
        }
        robot.click(controlOf(100));
        EXPECT_EQ(guiGetFocus(), 1) << "a label takes it";
    });
}

GUI_TEST(ControlFocus, OfAButtonOfIdZeroCannotBeTold)
{
    runDialog([] { guiButton(0, 0, 0, 40, "Cancel", 0); },
              [](Shown) {
                  EXPECT_TRUE(hasFocus(0));
                  EXPECT_EQ(guiGetFocus(), -1);
              });
}

// As the toolkit sees it: the others belong to no stop of their own.
GUI_TEST(ControlFocus, StopsAreControlsThatCanBeWorkedOn)
{
    runDialog(
        [] {
            buildPassive();
            guiButton(9, 0, 0, 0, "", 1);
            guiEdit(1, 0, 60, 40, 0, 0);
            guiButton(2, 1, 60, 40, "Button", 0);
            guiCheck(3, 2, 60, 40, "Check");
            guiRadio(4, 3, 60, 40, "Radio");
        },
        [](Shown) {
            const auto type = [](int id) {
                return resource<XmNavigationType>(controlOf(id), XmNnavigationType);
            };
            for (const int id : {100, 101, 102, 9}) EXPECT_EQ(+type(id), +XmNONE) << id;
            for (const int id : {1, 2, 3, 4}) EXPECT_EQ(+type(id), +XmEXCLUSIVE_TAB_GROUP) << id;
        });
}
