// guiGetPos and guiSetPos: how each kind of control counts.

#include <climits>

#include <Xm/ComboBox.h>
#include <Xm/Container.h>
#include <Xm/List.h>
#include <Xm/Scale.h>
#include <Xm/Text.h>

#include "dialog_plan.h"
#include "hand_made_controls.h"

using namespace kite::testing;

namespace {

int valueOf(int scale)
{
    return resource<int>(outerOf(scale), XmNvalue);
}

}  // namespace

GUI_TEST(Position, OfASliderIsItsValue)
{
    withKinds([] {
        guiSetRange(Slider, 1, 100);
        for (const int pos : {0, 5, 99}) {
            guiSetPos(Slider, pos);
            EXPECT_EQ(valueOf(Slider), pos);
            EXPECT_EQ(guiGetPos(Slider), pos);
        }
    });
}

GUI_TEST(Position, OfAProgressBarIsSetOneHigher)
{
    withKinds([] {
        guiSetRange(Progress, 1, 100);
        for (const int pos : {-1, 0, 5, 98}) {
            guiSetPos(Progress, pos);
            EXPECT_EQ(valueOf(Progress), pos + 1);
            EXPECT_EQ(guiGetPos(Progress), pos + 1);
        }
    });
}

GUI_TEST(Position, OutsideOfTheRangeIsTheNearestInIt)
{
    withKinds([] {
        for (const Kind kind : {Slider, Progress}) {
            guiSetRange(kind, 11, 51);
            for (const int pos : {51, 1000, INT_MAX}) {
                guiSetPos(kind, pos);
                EXPECT_EQ(valueOf(kind), 50) << kind << ' ' << pos;
            }
            for (const int pos : {8, -1, -1000, INT_MIN}) {
                guiSetPos(kind, pos);
                EXPECT_EQ(valueOf(kind), 10) << kind << ' ' << pos;
            }
        }
        for (const int pos : {100, 1000, INT_MAX}) {
            guiSetPos(Spin, pos);
            EXPECT_EQ(guiGetPos(Spin), 99) << pos;
        }
        for (const int pos : {-2, INT_MIN}) {
            guiSetPos(Spin, pos);
            EXPECT_EQ(guiGetPos(Spin), -1) << pos;
        }
    });
}

GUI_TEST(Position, OfAnEditIsItsInsertionPoint)
{
    runDialog({.build = buildSimpleKinds, .look = [](Shown dialog) {
                   guiSetText(Edit, "abcdef");
                   for (const int pos : {0, 3, 6}) {
                       guiSetPos(Edit, pos);
                       EXPECT_EQ(XmTextGetInsertionPosition(outerOf(Edit)), pos);
                   }
                   for (const int pos : {7, INT_MAX}) {
                       guiSetPos(Edit, pos);
                       EXPECT_EQ(XmTextGetInsertionPosition(outerOf(Edit)), 6) << pos;
                   }
                   for (const int pos : {-1, INT_MIN}) {
                       guiSetPos(Edit, pos);
                       EXPECT_EQ(XmTextGetInsertionPosition(outerOf(Edit)), 0) << pos;
                   }
                   guiSetFocus(Edit);
                   guiSetPos(Edit, 2);
                   dialog.type("x");
                   EXPECT_EQ(textOf(outerOf(Edit)), "abxcdef");
               }});
}

GUI_TEST(Position, OfAListIsItsTopItem)
{
    runDialog({.build = buildSimpleKinds, .fill = makeOtherKinds, .look = [](Shown) {
                   EXPECT_EQ(guiGetPos(List), 0);
                   for (const int pos : {5, 0, 7}) {
                       guiSetPos(List, pos);
                       EXPECT_EQ(resource<int>(innerOf(List), XmNtopItemPosition), pos + 1);
                       EXPECT_EQ(guiGetPos(List), pos);
                   }
                   for (const int pos : {20, 1000, INT_MAX, -2, INT_MIN}) guiSetPos(List, pos);
                   EXPECT_EQ(guiGetPos(List), 7) << "items that it does not have";
               }});
}

GUI_TEST(Position, OfATreeIsTheNumberBehindItsItem)
{
    runDialog({.fill =
                   [] {
                       makeTree(Tree, {"root", "branch"});
                   },
               .look =
                   [](Shown) {
                       EXPECT_EQ(guiGetPos(Tree), 0) << "nothing is selected";
                       int number = 0;
                       for (const char* const item : {"root", "branch"}) {
                           ++number;  // as it stands in the item's user data
                           selectTreeItem(innerOf(Tree), item);
                           EXPECT_EQ(guiGetPos(Tree), number + 1);
                           guiSetPos(Tree, 0);
                           EXPECT_EQ(guiGetPos(Tree), number + 1) << "cannot be set";
                       }
                   }});
}

GUI_TEST(Position, OfAChoiceIsAsTheToolkitCounts)
{
    withKinds([] {
        Widget const choice = innerOf(ChoiceBox);
        for (const char* const item : {"two", "one"}) {
            XmString const string = XmStringCreateLocalized(const_cast<char*>(item));
            XmComboBoxSelectItem(choice, string);
            XmStringFree(string);
            EXPECT_EQ(guiGetPos(ChoiceBox), resource<int>(choice, XmNselectedPosition));
        }
        const int one = guiGetPos(ChoiceBox);
        XmString const two = XmStringCreateLocalized(const_cast<char*>("two"));
        XmComboBoxSelectItem(choice, two);
        XmStringFree(two);
        EXPECT_EQ(guiGetPos(ChoiceBox), one + 1);
    });
}
