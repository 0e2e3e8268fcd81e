// Trees: items selected and clicked twice, branches expanded and collapsed by mouse.

#include <Xm/Container.h>
#include <Xm/PushBG.h>

#include <algorithm>

#include "other_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

enum Id { kBox = 1 };

// Items whose key the place does not tell.
void fill()
{
    guiAddTree(kBox, 0, 7, "Seven");
    guiAddTree(kBox, 7, 1, "One");
    guiAddTree(kBox, 1, 40, "Forty");
    guiAddTree(kBox, 0, 2, "Two");
}

void runTree(const std::function<void(Shown)>& use)
{
    runFilled([] { guiTree(kBox, 0, 8, 0, 100); }, fill, use);
}

void clickItem(int key)
{
    Robot::instance().click(innerOf(kBox), LeftButton, middleOfItem(kBox, key));
}

void doubleClickItem(int key)
{
    Robot::instance().doubleClick(innerOf(kBox), LeftButton, middleOfItem(kBox, key));
}

// All branches above it are expanded.
bool isSeen(int key)
{
    for (Widget item = itemOf(kBox, key); item;) {
        Widget const above = resource<Widget>(item, XmNentryParent);
        if (above && resource<unsigned char>(above, XmNoutlineState) != XmEXPANDED) return false;
        item = above;
    }
    return true;
}

// The mark in front of an item with others below: the container's button on that height.
void clickMark(int key)
{
    const Point item = middleOfItem(kBox, key);
    for (Widget const child : childrenOf(innerOf(kBox))) {
        const Rect place = placeOf(child);
        if (XtName(child) == std::string{"item"} || !isShown(child) ||
            !place.contains({place.centre().x, item.y}))
            continue;
        Robot::instance().click(innerOf(kBox), LeftButton, place.centre());
        return;
    }
    ADD_FAILURE() << key << " has no mark";
}

std::vector<Event> selections(const std::function<void()>& action)
{
    return only(GUI_EVENT_SELECT, eventsDuring(action));
}

// The toolkit puts a bar that is not needed outside.
bool showsBar()
{
    return rectOf(verticalBarOf(kBox)).x < rectOf(controlOf(kBox)).right();
}

}  // namespace

GUI_TEST(TreeControl, ReportsTheKeyOfTheSelectedItemLessOne)
{
    runTree([](Shown) {
        EXPECT_THAT(selections([] { clickItem(7); }), ElementsAre(selected(kBox, 6)));
        EXPECT_THAT(selections([] { clickItem(2); }), ElementsAre(selected(kBox, 1)));
        EXPECT_EQ(resource<unsigned int>(innerOf(kBox), XmNselectedObjectCount), 1U)
            << "one at a time";
        EXPECT_EQ(guiGetPos(kBox), 3);
    });

    runTree([](Shown) {
        EXPECT_THAT(selections([&] { doubleClickItem(2); }),
                    ElementsAre(selected(kBox, 1), selected(kBox, 1, 1)));
        EXPECT_THAT(selections([&] { doubleClickItem(7); }),
                    ElementsAre(selected(kBox, 6), selected(kBox, 6, 1)));
    });
}

GUI_TEST(TreeControl, ReportsNoItemWhenNothingIsSelected)
{
    runTree([this](Shown) {
        clickItem(2);
        const Rect place = placeOf(innerOf(kBox));
        const auto events = selections([&] {
            robot.click(innerOf(kBox), LeftButton, Point{place.width - 5, place.height - 5});
        });
        EXPECT_EQ(resource<unsigned int>(innerOf(kBox), XmNselectedObjectCount), 0U);
        EXPECT_THAT(events, ElementsAre(selected(kBox, -1)));
    });
}

GUI_TEST(TreeControl, BranchesAreCollapsedAtFirstAndExpandedByTheirMarks)
{
    runTree([](Shown) {
        EXPECT_TRUE(isSeen(7) && isSeen(2));
        EXPECT_FALSE(isSeen(1)) << "an item below a collapsed one";
        EXPECT_THAT(selections([] { clickMark(7); }), IsEmpty());
        EXPECT_TRUE(isSeen(1));
        EXPECT_FALSE(isSeen(40));
        clickMark(1);
        EXPECT_TRUE(isSeen(40));
        EXPECT_THAT(selections([] { clickItem(40); }), ElementsAre(selected(kBox, 39)));
        clickMark(7);
        EXPECT_FALSE(isSeen(1) || isSeen(40));
        EXPECT_TRUE(isSeen(2));
        clickMark(7);
        EXPECT_TRUE(isSeen(40)) << "as it was below";
    });
}

GUI_TEST(TreeControl, FilledByTheHostReportsNothing)
{
    runTree([this](Shown) {
        EXPECT_THAT(only(GUI_EVENT_SELECT, recorder.events()), IsEmpty());
        EXPECT_THAT(eventsDuring([] { fill(); }), IsEmpty());
    });
}

GUI_TEST(TreeControl, ThatIsDisabledSelectsNothing)
{
    runTree([](Shown) {
        guiEnable(kBox, 0);
        EXPECT_THAT(selections([] { clickItem(2); }), IsEmpty());
        guiEnable(kBox, 1);
        EXPECT_THAT(selections([] { clickItem(2); }), ElementsAre(selected(kBox, 1)));
    });
}

GUI_TEST(TreeControl, MayCloseTheDialogOrLoseTheItemInItsHandler)
{
    recorder.onEvent(GUI_EVENT_SELECT, kBox, [](const Event& event) {
        if (event.a == 6)
            guiDelTree(kBox, 7);
        else
            guiClose(25);
    });
    ASSERT_EQ(guiDialog(""), 0);
    guiTree(kBox, 0, 8, 0, 100);
    recorder.onEvent(GUI_EVENT_INIT, [] { fill(); });
    app.whenShown("v_dlgbbr", [](Shown) {
        clickItem(7);
        EXPECT_EQ(guiNumTree(kBox, 0), 1);
        Robot::instance().moveTo(innerOf(kBox), middleOfItem(kBox, 2));
        Robot::instance().click();
    });
    EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 25);
}

// The window in which it is scrolled is drawn with all of its shadow, and has nothing to scroll.
GUI_TEST(TreeControl, WithoutItemsIsAnEmptyFrame)
{
    const auto expectEmptyFrame = [](const char* when) {
        SCOPED_TRACE(when);
        Widget const scrolled = controlOf(kBox);
        Widget const around = resource<Widget>(scrolled, XmNclipWindow);
        EXPECT_TRUE(pumpUntil([&] { return resource<Position>(around, XmNx) == 2; }));
        EXPECT_EQ(resource<Position>(around, XmNy), 2);
        EXPECT_TRUE(pumpUntil([] { return !showsBar(); }));
    };
    runFilled([] { guiTree(kBox, 0, 4, 0, 80); }, [] {},
              [&](Shown) {
                  expectEmptyFrame("at first");
                  fillItems(kBox, 40);
                  EXPECT_TRUE(pumpUntil(showsBar));
                  guiRemoveAll(kBox);
                  expectEmptyFrame("emptied");
                  EXPECT_EQ(guiGetTop(kBox), 0);
              });
}

namespace {

int marks()
{
    const auto children = childrenOf(innerOf(kBox));
    return static_cast<int>(std::count_if(children.begin(), children.end(), [](Widget child) {
        return XmIsPushButtonGadget(child) && XtIsManaged(child);
    }));
}

void plantTwo()
{
    for (const int parent : {1, 2}) {
        guiAddTree(kBox, 0, parent, "Parent");
        guiAddTree(kBox, parent, parent + 10, "Child");
    }
}

}  // namespace

// An item that has lost those below it has no mark, and neither have those that moved up.
GUI_TEST(TreeControl, HasMarksWhereThereIsSomethingBelow)
{
    ASSERT_EQ(guiDialog(""), 0);
    guiTree(kBox, 0, 8, 0, 80);
    recorder.onEvent(GUI_EVENT_INIT, plantTwo);
    const auto haveMarks = [](int count) { return [count] { return marks() == count; }; };
    script.inOrder({script.shown("v_dlgbbr", [](Shown) {}),
                    {"two marks", haveMarks(2), [] { guiDelTree(kBox, 11); }},
                    {"one mark", haveMarks(1), [] { guiRemoveAll(kBox); }},
                    {"no mark", haveMarks(0), [] { guiClose(1); }}});
    EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 1);
}
