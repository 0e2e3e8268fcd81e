// The items of trees, by their keys.

#include <Xm/Container.h>
#include <Xm/IconG.h>

#include <climits>

#include "item_step.h"
#include "items_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

std::vector<int> keysBelow(int parent)
{
    std::vector<int> keys;
    for (int n = 1; n <= guiNumTree(Tree, parent); ++n) keys.push_back(guiNthTree(Tree, parent, n));
    return keys;
}

// 1 (2 (3), 4), 5
void plant()
{
    guiRemoveAll(Tree);
    while (guiNumTree(Tree, 0) > 0) guiRemoveAll(Tree);
    guiAddTree(Tree, 0, 1, "one");
    guiAddTree(Tree, 1, 2, "two");
    guiAddTree(Tree, 2, 3, "three");
    guiAddTree(Tree, 1, 4, "four");
    guiAddTree(Tree, 0, 5, "five");
}

}  // namespace

GUI_TEST(TreeItems, StandBelowTheirParentsInOrder)
{
    withItemControls([] {
        EXPECT_EQ(guiNumTree(Tree, 0), 0);
        EXPECT_EQ(guiNthTree(Tree, 0, 1), 0);
        plant();
        EXPECT_THAT(keysBelow(0), ElementsAre(1, 5));
        EXPECT_THAT(keysBelow(1), ElementsAre(2, 4));
        EXPECT_THAT(keysBelow(2), ElementsAre(3));
        for (const int none : {3, 5, 99, INT_MIN, INT_MAX}) EXPECT_EQ(guiNumTree(Tree, none), 0);
        for (const int parent : {0, 1, 99})
            for (const int n : {INT_MIN, -1, 0, 3, INT_MAX})
                EXPECT_EQ(guiNthTree(Tree, parent, n), 0) << parent << ' ' << n;
    });
}

GUI_TEST(TreeItems, WithoutTheirParentStandAtTheTop)
{
    withItemControls([] {
        for (const int parent : {99, -1, INT_MIN}) EXPECT_EQ(guiAddTree(Tree, parent, 7, "a"), 0);
        EXPECT_EQ(guiAddTree(Tree, 7, INT_MIN, nullptr), 0);
        EXPECT_EQ(guiAddTree(Tree, INT_MIN, -2, "two\nlines"), 0);
        EXPECT_THAT(keysBelow(0), ElementsAre(7, 7, 7));
        EXPECT_THAT(keysBelow(7), ElementsAre(INT_MIN));
        EXPECT_THAT(keysBelow(INT_MIN), ElementsAre(-2));
    });
}

GUI_TEST(TreeItems, AreNamedGadgetsInTheDialogsFont)
{
    withItemControls([] {
        guiAddTree(Tree, 0, 5, "a");
        Widget const item = findWidget("item", innerOf(Tree));
        ASSERT_TRUE(item && XmIsIconGadget(item));
        EXPECT_EQ(resource<Dimension>(item, XmNshadowThickness), 0);
        EXPECT_EQ(resource<Dimension>(item, XmNhighlightThickness), 0);
        EXPECT_EQ(resource<XtPointer>(item, XmNuserData), XtPointer(std::intptr_t{5}));
        EXPECT_EQ(resource<Widget>(item, XmNentryParent), nullptr);
        EXPECT_TRUE(XtIsManaged(item));
    });
}

GUI_TEST(TreeItems, OfOneKeyTheFirstInTheOutlineIsMeant)
{
    withItemControls([] {
        guiAddTree(Tree, 0, 1, "one");
        guiAddTree(Tree, 0, 7, "late");
        guiAddTree(Tree, 1, 7, "deep");
        EXPECT_EQ(item(Tree, 6), "deep");
        guiAddTree(Tree, 7, 8, "below");
        guiSetSel(Tree, 6);
        EXPECT_EQ(text(Tree), "deep");
        EXPECT_EQ(guiNumTree(Tree, 7), 1);
        guiDelTree(Tree, 7);
        EXPECT_EQ(item(Tree, 6), "late");
        EXPECT_EQ(guiNumTree(Tree, 7), 0);
        EXPECT_THAT(keysBelow(0), ElementsAre(1, 7));
        guiRemoveItem(Tree, 7);
        EXPECT_THAT(keysBelow(0), ElementsAre(1));
    });
}

GUI_TEST(TreeItems, AreDeletedWithAllBelow)
{
    withItemControls([] {
        plant();
        for (const int none : {0, 99, -1, INT_MIN}) guiDelTree(Tree, none);
        EXPECT_EQ(stateOfControl(Tree),
                  "1\"one\"( 2\"two\"( 3\"three\" ) 4\"four\" ) 5\"five\" selected ");
        guiDelTree(Tree, 2);
        EXPECT_EQ(stateOfControl(Tree), "1\"one\"( 4\"four\" ) 5\"five\" selected ");
        guiDelTree(Tree, 1);
        EXPECT_EQ(stateOfControl(Tree), "5\"five\" selected ");
        guiDelTree(Tree, 5);
        EXPECT_EQ(guiNumTree(Tree, 0), 0);
    });
}

GUI_TEST(TreeItems, RemovedAloneLeaveThoseBelow)
{
    withItemControls([] {
        plant();
        for (const int none : {99, -1, INT_MAX}) guiRemoveItem(Tree, none);
        EXPECT_THAT(keysBelow(0), ElementsAre(1, 5));
        guiRemoveItem(Tree, 1);
        EXPECT_THAT(keysBelow(0), ElementsAre(5, 2, 4));
        EXPECT_THAT(keysBelow(2), ElementsAre(3));
        guiRemoveAll(Tree);
        EXPECT_THAT(keysBelow(0), ElementsAre(3));
        guiRemoveAll(Tree);
        EXPECT_EQ(guiNumTree(Tree, 0), 0);
    });
}

GUI_TEST(TreeItems, AreSelectedOneAtATime)
{
    withItemControls([] {
        EXPECT_EQ(guiGetSel(Tree), 0) << "none";
        EXPECT_EQ(text(Tree), "");
        plant();
        for (const int key : {5, 1, 3}) {
            guiSetSel(Tree, key - 1);
            EXPECT_EQ(guiGetSel(Tree), key - 1);
            EXPECT_EQ(guiGetItemCount(Tree), 1);
        }
        for (const int none : {INT_MIN, -1, 98, INT_MAX}) guiSetSel(Tree, none);
        EXPECT_EQ(guiGetSel(Tree), 2);
        EXPECT_EQ(text(Tree), "three");
        EXPECT_EQ(resource<unsigned char>(findWidgets("item", innerOf(Tree))[2], XmNvisualEmphasis),
                  XmSELECTED);
        guiClrAll(Tree);
        guiClrSel(Tree, 2);
        EXPECT_EQ(guiGetSel(Tree), 2) << "trees have no clearing";
    });
}

GUI_TEST(TreeItems, ThatAreSelectedAndGoLeaveNoSelection)
{
    withItemControls([] {
        for (const bool isBranch : {true, false}) {
            plant();
            guiSetSel(Tree, 2);
            if (isBranch)
                guiDelTree(Tree, 1);
            else
                guiRemoveItem(Tree, 3);
            EXPECT_EQ(guiGetSel(Tree), 0);
            EXPECT_EQ(guiGetItemCount(Tree), 0);
            EXPECT_EQ(text(Tree), "");
        }
    });
}

GUI_TEST(TreeItems, OfOtherControlsAreRefusedUnderBorrowedNames)
{
    withItemControls([] {
        EXPECT_MISUSE(guiAddTree(kBrowseList, 0, 1, "a"),
                      "InsertTreeItem: unsuitable control type (id = 20)", 0);
        EXPECT_THAT(itemsOf(kBrowseList), IsEmpty());
        EXPECT_MISUSE(guiAddTree(999, 0, 1, "a"),
                      "InsertTreeItem: no control with id 999 in the dialog", -1);
        EXPECT_MISUSE(guiNthTree(999, 0, 0), "NumTreeItem: no control with id 999 in the dialog",
                      -1);
    });
}

// The toolkit destroys widgets only when the handler has returned.
GUI_TEST(TreeItems, AreGoneForTheNextCallOfTheSameHandler)
{
    bool isDone = false;
    recorder.onEvent(GUI_EVENT_COMMAND, 90, [&] {
        plant();
        guiSetSel(Tree, 1);
        guiDelTree(Tree, 2);
        EXPECT_THAT(keysBelow(1), ElementsAre(4));
        EXPECT_EQ(item(Tree, 1), "");
        EXPECT_EQ(item(Tree, 2), "");
        EXPECT_EQ(guiGetSel(Tree), 0);
        EXPECT_EQ(guiGetItemCount(Tree), 0);
        guiAddTree(Tree, 2, 9, "nine");
        EXPECT_THAT(keysBelow(0), ElementsAre(1, 5, 9)) << "its parent is gone";
        guiRemoveItem(Tree, 1);
        EXPECT_THAT(keysBelow(0), ::testing::UnorderedElementsAre(4, 5, 9));
        guiRemoveAll(Tree);
        EXPECT_EQ(guiNumTree(Tree, 0), 0);
        guiAddTree(Tree, 0, 1, "again");
        EXPECT_THAT(keysBelow(0), ElementsAre(1));
        isDone = true;
    });
    runDialog({.build =
                   [] {
                       buildItemControls();
                       guiButton(90, 15, 0, 40, "Run", 0);
                   },
               .look =
                   [&](Shown dialog) {
                       dialog.click("Run");
                       EXPECT_TRUE(isDone);
                       EXPECT_THAT(keysBelow(0), ElementsAre(1)) << "and afterwards";
                   }});
}
