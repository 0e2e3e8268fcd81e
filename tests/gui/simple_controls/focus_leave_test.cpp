// The user has left an edit: when the host hears of it, and that it hears of it once.

#include "simple_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

const Event kLeft1 = toDialog(GUI_EVENT_LEFT, 1, 1);
const Event kLeft2 = toDialog(GUI_EVENT_LEFT, 2, 1);

// The keyboard is in edit 1.
void build()
{
    guiEdit(1, 0, 0, 60, 0, 0);
    guiEdit(2, 1, 0, 60, 0, 0);
    guiButton(3, 2, 0, 60, "Button", 0);
    guiCheck(4, 3, 0, 60, "Check");
    guiRadio(5, 4, 0, 60, "Radio");
    guiRadio(6, 5, 0, 60, "Radio");
    guiImage(7, 6, 1, 0, 60, 1);
    guiLabel(8, 7, 0, 60, "Label");
    guiButton(9, 8, 0, 60, "Default", 1);
    guiButton(0, 9, 0, 0, "", 0);
}

void runBuilt(const std::function<void(Shown)>& use)
{
    runDialog(build, use);
}

std::vector<Event> eventsOfClick(int id)
{
    return eventsDuring([&] { Robot::instance().click(controlOf(id)); });
}

}  // namespace

GUI_TEST(FocusLeave, IsReportedWhenTabGoesOn)
{
    runBuilt([](Shown dialog) {
        const auto tab = [&] { return eventsDuring([&] { dialog.key(XK_Tab); }); };
        EXPECT_THAT(tab(), ElementsAre(kLeft1));
        EXPECT_THAT(tab(), ElementsAre(kLeft2));
        EXPECT_THAT(tab(), IsEmpty()) << "a button was left";
        EXPECT_THAT(tab(), IsEmpty()) << "a check box was left";
    });
}

GUI_TEST(FocusLeave, ComesBeforeTheEventOfTheControlThatWasClicked)
{
    const auto clickInTheMiddleOf = [](int image) {
        Widget const widget = controlOf(image);
        const int frame = resource<Dimension>(widget, XmNshadowThickness);
        return toDialog(GUI_EVENT_KEY, image, placeOf(widget).width / 2 - frame,
                        placeOf(widget).height / 2 - frame);
    };
    runBuilt([&](Shown) {
        const std::pair<int, Event> clicks[] = {
            {3, toDialog(GUI_EVENT_COMMAND, 3)},  {4, toDialog(GUI_EVENT_CHECK, 4, 1)},
            {6, toDialog(GUI_EVENT_RADIO, 6, 1)}, {7, clickInTheMiddleOf(7)},
            {9, toDialog(GUI_EVENT_COMMAND, 9)},
        };
        for (const auto& [id, own] : clicks) {
            eventsOfClick(1);
            ASSERT_TRUE(hasFocus(1));
            EXPECT_THAT(eventsOfClick(id), ElementsAre(kLeft1, own));
            EXPECT_THAT(without(own.event, eventsOfClick(id)), IsEmpty()) << "once";
        }
    });
}

GUI_TEST(FocusLeave, IsReportedForAClickWithoutAnEventOfItsOwn)
{
    runBuilt([](Shown) {
        EXPECT_THAT(eventsOfClick(5), ElementsAre(kLeft1)) << "a radio button that is set";
        eventsOfClick(1);
        EXPECT_THAT(eventsOfClick(2), ElementsAre(kLeft1)) << "another edit";
    });
}

// The keyboard stays where it is.
GUI_TEST(FocusLeave, DoesNotComeFromClicksOnTheSameEditOrALabel)
{
    runBuilt([this](Shown dialog) {
        EXPECT_THAT(eventsOfClick(1), IsEmpty());
        EXPECT_THAT(eventsOfClick(8), IsEmpty());
        EXPECT_THAT(eventsDuring([&] {
                        robot.click(dialog.widget(), LeftButton,
                                    Point{rectOf(dialog.widget()).width - 3, 3});
                    }),
                    IsEmpty());
        EXPECT_TRUE(hasFocus(1));
    });
}

// Return and Escape press buttons, but the keyboard stays in the edit: it was not left.
GUI_TEST(FocusLeave, DoesNotComeFromKeysThatLeaveTheKeyboardThere)
{
    runBuilt([](Shown dialog) {
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Return); }),
                    ElementsAre(toDialog(GUI_EVENT_COMMAND, 9)));
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Escape); }),
                    ElementsAre(toDialog(GUI_EVENT_COMMAND, 0)));
        EXPECT_TRUE(hasFocus(1));
    });

    runBuilt([](Shown dialog) {
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_F5); }),
                    ElementsAre(toDialog(GUI_EVENT_KEY, -1, 5)));
    });
}

// One report for one leaving, however the user goes to and fro.
GUI_TEST(FocusLeave, IsReportedOnceForEachLeaving)
{
    runBuilt([](Shown dialog) {
        const auto events = eventsDuring([&] {
            for (int i = 0; i < 3; ++i) {
                dialog.key(XK_Tab);
                dialog.key(XK_Tab, Shift);
            }
        });
        EXPECT_THAT(events, ElementsAre(kLeft1, kLeft2, kLeft1, kLeft2, kLeft1, kLeft2));
    });
}

// Typing does not count: only the leaving does.
GUI_TEST(FocusLeave, DoesNotDependOnChanges)
{
    runBuilt([](Shown dialog) {
        dialog.type("abc");
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Tab); }), ElementsAre(kLeft1));
    });
}

GUI_TEST(FocusLeave, OfReadOnlyAndHiddenEditsIsReported)
{
    runDialog(
        [] {
            guiEdit(1, 0, 0, 60, 1, 0);
            guiEdit(2, 1, 0, 60, 0, 1);
            guiCheck(3, 2, 0, 60, "Check");
        },
        [](Shown dialog) {
            EXPECT_THAT(eventsDuring([&] {
                            dialog.key(XK_Tab);
                            dialog.key(XK_Tab);
                        }),
                        ElementsAre(kLeft1, kLeft2));
        });
}

// The control that was clicked is not there any more when the host comes back from the event before.
GUI_TEST(FocusLeave, MayCloseTheDialog)
{
    recorder.onEvent(GUI_EVENT_LEFT, 1, [] { guiClose(41); });
    const auto runAndLeave = [&](const std::function<void(Shown)>& leave) {
        ASSERT_EQ(guiDialog(""), 0);
        build();
        recorder.clear();
        app.whenShown("v_dlgbbr", leave);
        EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 41);
        EXPECT_EQ(recorder.count(GUI_EVENT_LEFT), 1);
    };
    runAndLeave([](Shown dialog) { dialog.key(XK_Tab); });
    for (const int id : {2, 3, 4, 6, 7}) {
        SCOPED_TRACE(id);
        runAndLeave([&](Shown) {
            robot.moveTo(controlOf(id));
            robot.click();
        });
    }
}

// What was typed is wrong: the handler sends the user back, whatever took the keyboard away.
GUI_TEST(FocusLeave, MaySendTheUserBack)
{
    recorder.onEvent(GUI_EVENT_LEFT, 1, [](const Event& event) {
        if (event.handler == Handler::Dialog) guiSetFocus(1);
    });
    runDialog(build, [&](Shown dialog) {
        const auto sendsBack = [&](const std::function<void()>& leave) {
            EXPECT_THAT(eventsDuring([&] {
                            leave();
                            EXPECT_TRUE(pumpUntil([] { return hasFocus(1); }));
                            EXPECT_TRUE(holdsFor([] { return hasFocus(1); }, milliseconds{100}));
                        }),
                        ::testing::Contains(kLeft1).Times(1));
        };
        sendsBack([&] { dialog.key(XK_Tab); });
        sendsBack([&] { robot.click(controlOf(2)); });
        sendsBack([&] { robot.click(controlOf(4)); });
        dialog.type("x");
        EXPECT_EQ(textOf(controlOf(1)), "x");
        EXPECT_EQ(recorder.count(kLeft2), 0);
    });
}
