// Clicks on images.

#include "popups_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int kPlain = 1, kFramed = 2, kEdit = 3, kCheck = 4;

constexpr int kFrame = 2;  // pixels
constexpr unsigned kBoth[] = {LeftButton, RightButton};

void build()
{
    guiImage(kPlain, 0, 2, 0, 60, 0);
    guiImage(kFramed, 3, 2, 0, 60, 1);
    guiEdit(kEdit, 6, 0, 60, 0, 0);
    guiCheck(kCheck, 7, 0, 60, "Check");
}

Event clicked(unsigned button, int id, int x, int y)
{
    return toDialog(button == LeftButton ? GUI_EVENT_KEY : GUI_EVENT_CONTEXT, id, x, y);
}

std::vector<Event> eventsOfClick(int id, Point offset, unsigned button)
{
    return eventsDuring([&] { Robot::instance().click(controlOf(id), button, offset); });
}

// With the keyboard where no edit is left.
void runBuilt(const std::function<void()>& use)
{
    runDialog(build, [&](Shown) {
        guiSetFocus(kCheck);
        settle();
        use();
    });
}

}  // namespace

GUI_TEST(ImageClick, TellsThePlaceInsideTheFrame)
{
    runBuilt([] {
        const Rect image = rectOf(controlOf(kPlain));
        for (const unsigned button : kBoth)
            for (const Point place :
                 {Point{0, 0}, Point{7, 11}, Point{0, 9}, Point{image.width - 1, image.height - 1}})
                EXPECT_THAT(eventsOfClick(kPlain, place, button),
                            ElementsAre(clicked(button, kPlain, place.x, place.y)));
    });

    runBuilt([] {
        const Rect image = rectOf(controlOf(kFramed));
        const Point far{image.width - 1, image.height - 1};
        for (const unsigned button : kBoth) {
            for (const Point place : {Point{kFrame, kFrame}, Point{9, kFrame}, Point{30, 20}, far})
                EXPECT_THAT(
                    eventsOfClick(kFramed, place, button),
                    ElementsAre(clicked(button, kFramed, place.x - kFrame, place.y - kFrame)));
            for (const Point place : {Point{0, 0}, Point{1, 1}, Point{1, 9}, Point{9, 1}})
                EXPECT_THAT(eventsOfClick(kFramed, place, button), IsEmpty()) << place;
        }
    });
}

// Where the button is released: beyond the right and lower edges as well.
GUI_TEST(ImageClick, IsAtTheReleaseOfTheButton)
{
    runBuilt([] {
        const Point corner = rectOf(controlOf(kFramed)).corner();
        const auto eventsOfDrag = [&](Point to, unsigned button) {
            return eventsDuring([&] {
                Robot::instance().drag(corner + Point{20, 20}, corner + to, button);
                settle();
            });
        };
        for (const unsigned button : kBoth) {
            EXPECT_THAT(eventsOfDrag({25, 10}, button),
                        ElementsAre(clicked(button, kFramed, 25 - kFrame, 10 - kFrame)));
            EXPECT_THAT(eventsOfDrag({250, 20}, button),
                        ElementsAre(clicked(button, kFramed, 250 - kFrame, 20 - kFrame)));
            EXPECT_THAT(eventsOfDrag({20, -1}, button), IsEmpty());
            EXPECT_THAT(eventsOfDrag({-1, 20}, button), IsEmpty());
        }
    });
}

GUI_TEST(ImageClick, OfTheFirstButtonComesAfterTheEditWasLeft)
{
    runDialog(build, [](Shown) {
        for (const int id : std::initializer_list<int>{kPlain, kFramed}) {
            guiSetFocus(kEdit);
            settle();
            EXPECT_THAT(eventsOfClick(id, {9, 9}, RightButton),
                        ElementsAre(clicked(RightButton, id, 9 - (id == kFramed ? kFrame : 0),
                                            9 - (id == kFramed ? kFrame : 0))))
                << "the keyboard stays in the edit";
            ASSERT_TRUE(hasFocus(kEdit));
            const std::vector<Event> events = eventsOfClick(id, {9, 9}, LeftButton);
            ASSERT_EQ(events.size(), 2U);
            EXPECT_EQ(events[0], leftBehind(kEdit));
            EXPECT_EQ(events[1].event, GUI_EVENT_KEY);
            EXPECT_EQ(events[1].id, id);
        }
    });
}

GUI_TEST(ImageClick, EachOfADoubleClickCountsAndTheMiddleButtonDoesNot)
{
    runBuilt([] {
        EXPECT_THAT(
            eventsDuring([] {
                Robot::instance().doubleClick(controlOf(kPlain), LeftButton, Point{4, 5});
            }),
            ElementsAre(clicked(LeftButton, kPlain, 4, 5), clicked(LeftButton, kPlain, 4, 5)));
        EXPECT_THAT(eventsOfClick(kPlain, {9, 9}, MiddleButton), IsEmpty());
    });
}

GUI_TEST(ImageClick, MayCloseTheDialog)
{
    for (const unsigned button : kBoth) {
        recorder.onEvent(button == LeftButton ? GUI_EVENT_KEY : GUI_EVENT_CONTEXT, kPlain,
                         [] { guiClose(27); });
        ASSERT_EQ(guiDialog(""), 0);
        build();
        app.whenShown("v_dlgbbr", [&](Shown) {
            robot.moveTo(controlOf(kPlain));
            robot.click(button);
        });
        EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 27);
    }
}
