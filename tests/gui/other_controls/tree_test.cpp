// Trees: items selected and clicked twice, branches expanded and collapsed by mouse.

#include <Xm/Container.h>

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

Widget itemNamed(const std::string& label)
{
    Widget const item = findByLabel(label, innerOf(kBox));
    EXPECT_TRUE(item) << label;
    return item;
}

Point middleOf(Widget item)
{
    return {item ? resource<Position>(item, XmNx) + resource<Dimension>(item, XmNwidth) / 2 : 0,
            item ? resource<Position>(item, XmNy) + resource<Dimension>(item, XmNheight) / 2 : 0};
}

void clickItem(const std::string& label)
{
    Robot::instance().click(innerOf(kBox), LeftButton, middleOf(itemNamed(label)));
}

bool isManaged(const std::string& label)
{
    return isShown(itemNamed(label));
}

// The mark in front of an item with others below: the container's button on that height.
void clickMark(const std::string& label)
{
    const int height = middleOf(itemNamed(label)).y;
    for (Widget const child : childrenOf(innerOf(kBox))) {
        if (std::string{XtName(child)} == "item" || !XtIsManaged(child)) continue;
        const Rect place = placeOf(child);
        if (place.y > height || place.bottom() < height) continue;
        Robot::instance().click(innerOf(kBox), LeftButton,
                                Point{place.x + place.width / 2, place.y + place.height / 2});
        return;
    }
    ADD_FAILURE() << label << " has no mark";
}

std::vector<Event> selections(const std::function<void()>& action)
{
    return only(GUI_EVENT_SELECT, eventsDuring(action));
}

}  // namespace

GUI_TEST(TreeControl, ReportsTheKeyOfTheSelectedItemLessOne)
{
    runTree([](Shown) {
        EXPECT_THAT(selections([] { clickItem("Seven"); }), ElementsAre(selected(kBox, 6)));
        EXPECT_THAT(selections([] { clickItem("Two"); }), ElementsAre(selected(kBox, 1)));
        EXPECT_EQ(resource<unsigned int>(innerOf(kBox), XmNselectedObjectCount), 1U)
            << "one at a time";
        EXPECT_EQ(guiGetPos(kBox), 3);
    });
}

GUI_TEST(TreeControl, ReportsADoubleClickBehindTheSelection)
{
    runTree([this](Shown) {
        EXPECT_THAT(selections([&] {
                        robot.doubleClick(innerOf(kBox), LeftButton, middleOf(itemNamed("Two")));
                    }),
                    ElementsAre(selected(kBox, 1), selected(kBox, 1, 1)));
        EXPECT_THAT(selections([&] {
                        robot.doubleClick(innerOf(kBox), LeftButton, middleOf(itemNamed("Seven")));
                    }),
                    ElementsAre(selected(kBox, 6), selected(kBox, 6, 1)));
    });
}

GUI_TEST(TreeControl, ReportsNoItemWhenNothingIsSelected)
{
    runTree([this](Shown) {
        clickItem("Two");
        const Rect place = placeOf(innerOf(kBox));
        const auto events = selections([&] {
            robot.click(innerOf(kBox), LeftButton, Point{place.width - 5, place.height - 5});
        });
        if (resource<unsigned int>(innerOf(kBox), XmNselectedObjectCount) == 0) {
            EXPECT_THAT(events, ElementsAre(selected(kBox, -1)));
        } else {
            EXPECT_THAT(events, ::testing::Each(selected(kBox, 1)));
        }
    });
}

GUI_TEST(TreeControl, BranchesAreCollapsedAtFirstAndExpandedByTheirMarks)
{
    runTree([](Shown) {
        EXPECT_TRUE(isManaged("Seven") && isManaged("Two"));
        EXPECT_FALSE(isManaged("One")) << "an item below a collapsed one";
        EXPECT_THAT(selections([] { clickMark("Seven"); }), IsEmpty());
        EXPECT_TRUE(isManaged("One"));
        EXPECT_FALSE(isManaged("Forty"));
        clickMark("One");
        EXPECT_TRUE(isManaged("Forty"));
        EXPECT_THAT(selections([] { clickItem("Forty"); }), ElementsAre(selected(kBox, 39)));
        clickMark("Seven");
        EXPECT_FALSE(isManaged("One") || isManaged("Forty"));
        EXPECT_TRUE(isManaged("Two"));
        clickMark("Seven");
        EXPECT_TRUE(isManaged("Forty")) << "as it was below";
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
        EXPECT_THAT(selections([] { clickItem("Two"); }), IsEmpty());
        guiEnable(kBox, 1);
        EXPECT_THAT(selections([] { clickItem("Two"); }), ElementsAre(selected(kBox, 1)));
    });
}

GUI_TEST(TreeControl, MayCloseTheDialogOrLoseTheItemInItsHandler)
{
    recorder.onEvent(GUI_EVENT_SELECT, kBox, [](const Event& event) {
        if (event.a == 1) guiClose(25);
        guiDelTree(kBox, 7);
    });
    ASSERT_EQ(guiDialog(""), 0);
    guiTree(kBox, 0, 8, 0, 100);
    recorder.onEvent(GUI_EVENT_INIT, [] { fill(); });
    app.whenShown("v_dlgbbr", [](Shown) {
        clickItem("Seven");
        EXPECT_EQ(guiNumTree(kBox, 0), 1);
        Robot::instance().moveTo(innerOf(kBox), middleOf(itemNamed("Two")));
        Robot::instance().click();
    });
    EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 25);
}
