// Where the keyboard is among lists, choices and combo boxes.

#include "list_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

enum Id { kList = 1, kChoice, kCombo };

void buildAll()
{
    guiList(kList, 0, 3, 0, 60, GUI_BROWSE);
    guiChoice(kChoice, 3, 0, 60);
    guiCombo(kCombo, 4, 0, 60);
}

void fillAll()
{
    for (const int id : {kList, kChoice, kCombo}) appendItems(id, 9);
}

// As the toolkit sees it; guiGetFocus does not know a list.
int focused()
{
    if (hasFocus(listOf(kList))) return kList;
    if (hasFocus(fieldOf(kChoice)) || hasFocus(controlOf(kChoice))) return kChoice;
    if (hasFocus(fieldOf(kCombo)) || hasFocus(controlOf(kCombo))) return kCombo;
    return -1;
}

std::vector<int> focusedAlong(Shown dialog, unsigned modifiers)
{
    std::vector<int> ids;
    for (int i = 0; i < 4; ++i) {
        dialog.key(XK_Tab, modifiers);
        ids.push_back(focused());
    }
    return ids;
}

}  // namespace

GUI_TEST(ListFocus, IsFirstOnAnyOfThem)
{
    const std::function<void()> makers[] = {
        [] { guiList(1, 3, 2, 0, 40, GUI_MULTIPLE); },
        [] { guiChoice(1, 3, 0, 40); },
        [] { guiCombo(1, 3, 0, 40); },
    };
    for (const auto& make : makers) {
        SCOPED_TRACE(&make - makers);
        runDialog({.build =
                       [&] {
                           guiLabel(9, 0, 0, 40, "Label");
                           make();
                           guiEdit(2, 6, 0, 40, 0, 0);
                       },
                   .use =
                       [](Shown) {
                           Widget focus = XmGetFocusWidget(newestBoard());
                           while (focus && XtParent(focus) != newestBoard())
                               focus = XtParent(focus);
                           EXPECT_EQ(focus, controlOf(1));
                       }});
    }
}

GUI_TEST(ListFocus, PassesOverThoseThatAreDisabled)
{
    runDialog({.build =
                   [] {
                       buildAll();
                       XtSetSensitive(controlOf(kList), False);
                       XtSetSensitive(controlOf(kChoice), False);
                   },
               .use = [](Shown) { EXPECT_EQ(focused(), kCombo); }});
}

GUI_TEST(ListFocus, GoesWithTabInTheOrderOfCreation)
{
    runDialog({.build = buildAll, .fill = fillAll, .use = [](Shown dialog) {
                   EXPECT_EQ(focused(), kList);
                   EXPECT_THAT(focusedAlong(dialog, NoModifier),
                               ElementsAre(kChoice, kCombo, kList, kChoice));
                   EXPECT_THAT(focusedAlong(dialog, Shift),
                               ElementsAre(kList, kCombo, kChoice, kList));
               }});
}

GUI_TEST(ListFocus, GoesWhereTheMouseClicks)
{
    runDialog({.build = buildAll, .fill = fillAll, .use = [this](Shown) {
                   robot.click(fieldOf(kCombo));
                   EXPECT_EQ(focused(), kCombo);
                   clickItem(kList, 1);
                   EXPECT_EQ(focused(), kList);
                   robot.click(fieldOf(kChoice));
                   EXPECT_EQ(focused(), kChoice);
                   robot.click(verticalBarOf(kList));
                   EXPECT_EQ(focused(), kChoice) << "a scroll bar takes it";
                   clickArrow(kCombo);
                   ASSERT_TRUE(waitUntilOpen(kCombo));
                   robot.keyHandled(XK_Escape);
                   EXPECT_TRUE(waitUntilClosed(kCombo));
                   EXPECT_EQ(focused(), kCombo);
               }});
}

// The part of a list that has the keyboard has no id.
GUI_TEST(ListFocus, OfAListCannotBeTold)
{
    runDialog({.build = buildAll, .fill = fillAll, .use = [](Shown dialog) {
                   EXPECT_EQ(focused(), kList);
                   EXPECT_EQ(guiGetFocus(), -1);
                   dialog.key(XK_Tab);
                   EXPECT_EQ(guiGetFocus(), kChoice);
                   dialog.key(XK_Tab);
                   EXPECT_EQ(guiGetFocus(), kCombo);
               }});
}
