// Lists and the mouse: what a click, a drag and the keys that are held with them select, in each mode.

#include <Xm/List.h>

#include "list_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int kList = 5;
constexpr int kRows = 6;
constexpr int kItems = 5;

void runList(int mode, const std::function<void()>& use)
{
    runDialog({.build = [&] { guiList(kList, 0, kRows, 0, 80, mode); },
               .fill = [] { appendItems(kList, kItems); },
               .use = [&](Shown) { use(); }});
}

// What a click reports, and what is selected then.
void expectClick(int index, unsigned modifiers, const std::vector<int>& expected)
{
    SCOPED_TRACE("click on " + std::to_string(index));
    EXPECT_THAT(eventsDuring([&] { clickItem(kList, index, modifiers); }),
                ElementsAre(selected(kList, index)));
    EXPECT_EQ(selectedItems(kList), expected);
}

// With the button held from one item to others.
void dragOver(const std::vector<int>& items)
{
    Widget const list = listOf(kList);
    Robot& robot = Robot::instance();
    robot.moveTo(list, middleOfItem(list, items.front()));
    robot.press();
    settle();
    for (const int item : items) {
        robot.moveTo(list, middleOfItem(list, item));
        settle();
    }
    robot.release();
    settle();
}

}  // namespace

GUI_TEST(ListMouse, SelectsOneItemInBrowseMode)
{
    for (const int mode : {0, -1, -32768}) {
        SCOPED_TRACE(mode);
        runList(mode, [] {
            for (const int index : {2, 4, 0, 1}) expectClick(index, NoModifier, {index});
            for (const unsigned modifier : {Shift, Control}) {
                EXPECT_THAT(eventsDuring([&] { clickItem(kList, 3, modifier); }), IsEmpty());
                EXPECT_THAT(selectedItems(kList), ElementsAre(1));
            }
        });
    }
}

// The event comes when the button is released, once, for the item under the pointer then.
GUI_TEST(ListMouse, SelectionFollowsThePointerInBrowseMode)
{
    runList(GUI_BROWSE, [this] {
        Widget const list = listOf(kList);
        const auto events = eventsDuring([&] {
            robot.moveTo(list, middleOfItem(list, 1));
            robot.press();
            for (const int item : {1, 2, 3}) {
                robot.moveTo(list, middleOfItem(list, item));
                EXPECT_TRUE(pumpUntil([&] { return XmListPosSelected(list, item + 1); }));
            }
            robot.release();
        });
        EXPECT_THAT(events, ElementsAre(selected(kList, 3)));
        EXPECT_THAT(selectedItems(kList), ElementsAre(3));
    });
}

// A list of one selection never has none because of a click.
GUI_TEST(ListMouse, ClickOnTheOnlySelectedItemKeepsAndReportsIt)
{
    for (const int mode : {GUI_BROWSE, GUI_EXTENDED}) {
        SCOPED_TRACE(mode);
        runList(mode, [] {
            for (int times = 0; times < 3; ++times) expectClick(2, NoModifier, {2});
        });
    }
}

GUI_TEST(ListMouse, ControlClickOnTheOnlySelectedItemKeepsAndReportsIt)
{
    runList(GUI_EXTENDED, [] {
        expectClick(2, NoModifier, {2});
        expectClick(2, Control, {2});
        expectClick(2, Control, {2});
        expectClick(3, Control, {2, 3});
        expectClick(3, Control, {2});
        expectClick(2, Control, {2});
    });
}

GUI_TEST(ListMouse, SelectsRangesInExtendedMode)
{
    runList(GUI_EXTENDED, [] {
        expectClick(1, NoModifier, {1});
        expectClick(3, Shift, {1, 2, 3});
        expectClick(4, Shift, {1, 2, 3, 4});
        expectClick(2, Control, {1, 3, 4});
        expectClick(0, Control, {0, 1, 3, 4});
        expectClick(2, NoModifier, {2});
    });
}

GUI_TEST(ListMouse, SelectsWhatItIsDraggedOverInExtendedMode)
{
    runList(GUI_EXTENDED, [] {
        EXPECT_THAT(eventsDuring([] { dragOver({1, 2, 3}); }), ElementsAre(selected(kList, 3)));
        EXPECT_THAT(selectedItems(kList), ElementsAre(1, 2, 3));
    });
}

GUI_TEST(ListMouse, TogglesEachItemInMultipleMode)
{
    for (const int mode : {2, 3, 32767}) {
        SCOPED_TRACE(mode);
        runList(mode, [] {
            EXPECT_THAT(selectedItems(kList), IsEmpty());
            expectClick(1, NoModifier, {1});
            expectClick(3, NoModifier, {1, 3});
            expectClick(0, NoModifier, {0, 1, 3});
            expectClick(1, NoModifier, {0, 3});
        });
    }
}

GUI_TEST(ListMouse, DeselectsTheLastItemInMultipleMode)
{
    runList(GUI_MULTIPLE, [] {
        expectClick(2, NoModifier, {2});
        expectClick(2, NoModifier, {});
        expectClick(4, NoModifier, {4});
        expectClick(4, NoModifier, {});
    });
}

// Nothing to select: nothing to report.
GUI_TEST(ListMouse, ClickOnAnEmptyListIsNothing)
{
    for (const int mode : {GUI_BROWSE, GUI_EXTENDED, GUI_MULTIPLE}) {
        SCOPED_TRACE(mode);
        runDialog({.build = [&] { guiList(kList, 0, kRows, 0, 80, mode); },
                   .use =
                       [this](Shown) {
                           EXPECT_THAT(eventsDuring([&] {
                                           robot.click(listOf(kList));
                                           robot.doubleClick(listOf(kList));
                                       }),
                                       IsEmpty());
                       }});
    }
}

// The selection of the toolkit is there already when the handler is called.
GUI_TEST(ListMouse, HandlerFindsTheNewSelection)
{
    std::vector<int> seen;
    recorder.onEvent(GUI_EVENT_SELECT, kList, [&] { seen = selectedItems(kList); });
    runList(GUI_BROWSE, [&] {
        clickItem(kList, 3);
        EXPECT_THAT(seen, ElementsAre(3));
    });
    runList(GUI_EXTENDED, [&] {
        clickItem(kList, 3);
        clickItem(kList, 3, Control);
        EXPECT_THAT(seen, ElementsAre(3));
    });
}

// The host may close the dialog, and with it the list that was clicked.
GUI_TEST(ListMouse, HandlerMayCloseTheDialog)
{
    for (const bool isDouble : {false, true}) {
        SCOPED_TRACE(isDouble);
        ASSERT_EQ(guiDialog(""), 0);
        guiList(kList, 0, kRows, 0, 80, GUI_BROWSE);
        recorder.onEvent(GUI_EVENT_INIT, [] { appendItems(kList, kItems); });
        recorder.onEvent(GUI_EVENT_SELECT, kList, [&](const Event& event) {
            if ((event.b == 1) == isDouble) guiClose(25);
        });
        app.whenShown("v_dlgbbr", [](Shown) {
            Widget const list = listOf(kList);
            Robot::instance().moveTo(list, middleOfItem(list, 2));
            Robot::instance().doubleClick();
        });
        EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 25);
        EXPECT_FALSE(newestBoard());
    }
}
