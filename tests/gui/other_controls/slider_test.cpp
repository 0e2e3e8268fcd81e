// Sliders by mouse and keyboard.

#include <Xm/Scale.h>

#include "other_controls_support.h"

using namespace kite::testing;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;

namespace {

enum Id { kAcross = 1, kDownwards };

void build()
{
    guiSlider(kAcross, 0, 1, 0, 160);
    guiSlider(kDownwards, 2, 8, 0, 10);
}

std::vector<Event> values(const std::function<void()>& action)
{
    return only(GUI_EVENT_VALUE, eventsDuring(action));
}

void runSliders(const std::function<void()>& fill, const std::function<void(Shown)>& use)
{
    runFilled(build, fill, use);
}

// The slider itself, with the least value: at the left, or for an upright one at the bottom.
Point onSlider(int id)
{
    const Rect bar = rectOf(innerOf(id));
    return id == kAcross ? Point{bar.x + 10, bar.centre().y}
                         : Point{bar.centre().x, bar.bottom() - 10};
}

}  // namespace

// Every value on the way, in order, and the last is where it stays.
GUI_TEST(Slider, ReportsEachValueWhileItIsDragged)
{
    runSliders([] {},
               [this](Shown) {
                   for (const int id : {int{kAcross}, int{kDownwards}}) {
                       SCOPED_TRACE(id);
                       const Point from = onSlider(id);
                       const Point to = id == kAcross ? from + Point{150, 0} : from + Point{0, -90};
                       const auto events = values([&] {
                           robot.drag(from, to);
                           EXPECT_TRUE(pumpUntil([&] { return valueOf(id) > 20; }));
                       });
                       ASSERT_GE(events.size(), 3U) << "on the way";
                       EXPECT_THAT(events, Each(Field(&Event::id, id)));
                       for (std::size_t i = 1; i < events.size(); ++i)
                           EXPECT_GE(events[i].a, events[i - 1].a);
                       EXPECT_EQ(events.back().a, valueOf(id));
                       EXPECT_EQ(guiGetPos(id), valueOf(id));
                       guiEnable(id, 1);  // events pass again
                   }
               });
}

GUI_TEST(Slider, StepsByKeysToItsEnds)
{
    runSliders(
        [] { guiSetPos(kAcross, 50); },
        [](Shown dialog) {
            ASSERT_TRUE(waitForKeyboard(kAcross));
            EXPECT_THAT(values([&] { dialog.key(XK_Right); }), ElementsAre(value(kAcross, 51)));
            EXPECT_THAT(values([&] { dialog.key(XK_Left); }), ElementsAre(value(kAcross, 50)));
            EXPECT_THAT(values([&] { dialog.key(XK_End); }), ElementsAre(value(kAcross, 100)));
            EXPECT_THAT(values([&] { dialog.key(XK_Right); }), IsEmpty()) << "the end";
            EXPECT_THAT(values([&] { dialog.key(XK_Home); }), ElementsAre(value(kAcross, 0)));
            EXPECT_THAT(values([&] { dialog.key(XK_Left); }), IsEmpty()) << "the beginning";
        });

    // The host counts the values of a range from 1: of 1 to 11 the user reaches 0 to 10.
    runSliders(
        [] { guiSetRange(kAcross, 1, 11); },
        [](Shown dialog) {
            ASSERT_TRUE(waitForKeyboard(kAcross));
            EXPECT_THAT(values([&] { dialog.key(XK_End); }), ElementsAre(value(kAcross, 10)));
            EXPECT_THAT(values([&] { dialog.key(XK_Home); }), ElementsAre(value(kAcross, 0)));
        });
}

GUI_TEST(Slider, MovesTowardsAClickOnItsTrough)
{
    runSliders([] { guiSetPos(kAcross, 50); },
               [this](Shown) {
                   const int width = rectOf(innerOf(kAcross)).width;
                   auto events = values([&] {
                       robot.click(innerOf(kAcross), LeftButton, Point{width - 4, 5});
                   });
                   ASSERT_EQ(events.size(), 1U);
                   EXPECT_GT(events[0].a, 50);
                   EXPECT_EQ(events[0], value(kAcross, valueOf(kAcross)));
                   const int before = events[0].a;
                   events = values([&] { robot.click(innerOf(kAcross), LeftButton, Point{4, 5}); });
                   ASSERT_EQ(events.size(), 1U);
                   EXPECT_LT(events[0].a, before);
               });
}

GUI_TEST(Slider, ReportsNothingOfTheHostsChanges)
{
    const auto change = [] {
        guiSetPos(kAcross, 30);
        guiSetRange(kAcross, 1, 20);
        guiSetPos(kDownwards, 5);
    };
    runSliders(change, [&](Shown) {
        EXPECT_THAT(only(GUI_EVENT_VALUE, recorder.events()), IsEmpty());
        EXPECT_THAT(values(change), IsEmpty());
    });
}

GUI_TEST(Slider, ThatIsDisabledStays)
{
    runSliders([] { guiEnable(kAcross, 0); },
               [this](Shown) {
                   EXPECT_THAT(values([&] {
                                   const Point from = onSlider(kAcross);
                                   robot.drag(from, from + Point{100, 0});
                                   settle();
                               }),
                               IsEmpty());
                   EXPECT_EQ(valueOf(kAcross), 0);
               });
}

// No operation reaches it, but its events come.
GUI_TEST(Slider, ThatIsAnonymousReportsMinusOne)
{
    runDialog([] { guiSlider(-1, 0, 1, 0, 160); },
              [](Shown dialog) {
                  Widget const bar = XtNameToWidget(controlsOfBoard().front(), "Scrollbar");
                  ASSERT_TRUE(pumpUntil([&] { return XmGetFocusWidget(newestBoard()) == bar; }));
                  EXPECT_THAT(values([&] { dialog.key(XK_Right); }), ElementsAre(value(-1, 1)));
              });
}

GUI_TEST(Slider, MayCloseTheDialogWhileItIsDragged)
{
    recorder.onEvent(GUI_EVENT_VALUE, kAcross, [] { guiClose(24); });
    ASSERT_EQ(guiDialog(""), 0);
    build();
    app.whenShown("v_dlgbbr", [this](Shown) {
        const Point from = onSlider(kAcross);
        robot.drag(from, from + Point{100, 0});
    });
    EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 24);
    EXPECT_FALSE(newestBoard());
}
