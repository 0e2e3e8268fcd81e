// guiGetTop and guiSetTop on lists and trees.

#include <climits>

#include <Xm/List.h>

#include "dialog_plan.h"
#include "hand_made_controls.h"

using namespace kite::testing;

GUI_TEST(Top, OfAListIsItsFirstVisibleItem)
{
    runDialog({.fill = makeOtherKinds, .look = [](Shown) {
                   Widget const list = innerOf(List);
                   EXPECT_EQ(guiGetTop(List), 0);
                   for (const int top : {6, 1, 0, 9}) {
                       guiSetTop(List, top);
                       EXPECT_EQ(guiGetTop(List), top);
                       EXPECT_EQ(resource<int>(list, XmNtopItemPosition), top + 1);
                   }
               }});
}

GUI_TEST(Top, OfAListWithoutSuchAnItemStaysAsItIs)
{
    runDialog({.fill = makeOtherKinds, .look = [](Shown) {
                   guiSetTop(List, 4);
                   for (const int top : {20, 21, INT_MAX, -2, INT_MIN}) {
                       guiSetTop(List, top);
                       EXPECT_EQ(guiGetTop(List), 4) << top;
                   }
               }});
}

GUI_TEST(Top, OfAnEmptyListIsSurvived)
{
    runDialog({.fill = [] {
        makeList(List);
        const int before = guiGetTop(List);
        for (const int top : {0, 1, -1}) guiSetTop(List, top);
        EXPECT_EQ(guiGetTop(List), before);
    }});
}

GUI_TEST(Top, OfAListFollowsTheUser)
{
    runDialog({.fill = makeOtherKinds, .look = [&](Shown) {
                   guiSetTop(List, 2);
                   Widget const bar = resource<Widget>(outerOf(List), XmNverticalScrollBar);
                   const Rect rect = rectOf(bar);
                   robot.click(bar, LeftButton, Point{rect.width / 2, rect.height - 5});
                   EXPECT_TRUE(pumpUntil([] { return guiGetTop(List) == 3; }));
               }});
}

GUI_TEST(Top, OfATreeIsItsFirstVisibleRow)
{
    runDialog({.fill = [] {
        makeTree(Tree, {"root"});
        EXPECT_EQ(guiGetTop(Tree), 0);
    }});
}
