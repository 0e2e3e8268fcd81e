// An edit loses the keyboard because its window does: to a box, to another dialog, or for good.

#include "connection.h"
#include "simple_controls_support.h"

using namespace kite::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

const Event kLeft1 = toDialog(GUI_EVENT_LEFT, 1, 1);

void build()
{
    guiEdit(1, 0, 0, 60, 0, 0);
    guiButton(3, 1, 0, 60, "Button", 0);
    guiCheck(4, 2, 0, 60, "Check");
    guiButton(9, 3, 0, 60, "Default", 1);
}

void showBox()
{
    Script::instance().whenShown("v_errorbox", [](Shown box) { box.key(XK_Return); });
    guiErrorBox("In between");
}

// Has the keyboard in a window of its own, and gives it back.
class OtherProgram {
public:
    OtherProgram()
    {
        XSetWindowAttributes attributes{};
        attributes.override_redirect = True;
        window_ = XCreateWindow(connection(), rootWindow(), 0, 0, 9, 9, 0, CopyFromParent,
                                InputOutput, CopyFromParent, CWOverrideRedirect, &attributes);
        XMapRaised(connection(), window_);
        XGetInputFocus(connection(), &before_, &revert_);
        XSetInputFocus(connection(), window_, RevertToNone, CurrentTime);
        XSync(connection(), False);
    }
    ~OtherProgram()
    {
        XSetInputFocus(connection(), before_, revert_, CurrentTime);
        XDestroyWindow(connection(), window_);
        XSync(connection(), False);
    }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

private:
    Window window_ = 0;
    Window before_ = 0;
    int revert_ = RevertToNone;
};

// The dialog closes itself in the reaction to what is done. The events from then on.
std::vector<Event> eventsOfClosing(const std::function<void(Shown)>& use)
{
    EXPECT_EQ(guiDialog(""), 0);
    build();
    App::instance().whenShown("v_dlgbbr", [&](Shown dialog) {
        EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
        settle();
        Recorder::instance().clear();
        use(dialog);
    });
    guiRunDialog(Recorder::dialogHandler());
    settle();
    return Recorder::instance().events();
}

}  // namespace

// The edit has the keyboard again behind the box, which is a gain like any other.
GUI_TEST(FocusLeaveOfWindow, IsReportedOnceBehindABox)
{
    recorder.onEvent(GUI_EVENT_KEY, -1, [] { showBox(); });
    runDialog(build, [](Shown dialog) {
        EXPECT_THAT(eventsDuring([&] {
                        dialog.key(XK_F5);
                        EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
                        settle();
                        dialog.key(XK_Tab);
                    }),
                    ElementsAre(toDialog(GUI_EVENT_KEY, -1, 5), kLeft1, kLeft1));
    });
}

// The box comes in the middle of the leaving itself.
GUI_TEST(FocusLeaveOfWindow, IsReportedOnceWhenItsHandlerShowsABox)
{
    recorder.onEvent(GUI_EVENT_LEFT, 1, [] { showBox(); });
    runDialog(build, [](Shown dialog) {
        EXPECT_THAT(eventsDuring([&] {
                        Robot::instance().click(controlOf(4));
                        EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
                        settle();
                    }),
                    Contains(kLeft1).Times(1));
    });
}

// The keyboard goes to another program and comes back.
GUI_TEST(FocusLeaveOfWindow, IsReportedOnceBehindAnotherProgram)
{
    runDialog(build, [](Shown dialog) {
        const auto events = eventsDuring([&] {
            {
                const OtherProgram other;
                EXPECT_TRUE(pumpUntil([&] { return !wm::hasFocus(dialog.widget()); }));
                settle();
                EXPECT_EQ(Recorder::instance().count(kLeft1), 0) << "it is not known yet";
            }
            EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
        });
        EXPECT_THAT(events, ElementsAre(kLeft1));
    });
}

// The control that gains the keyboard is one of the inner dialog, which has the events by then.
GUI_TEST(FocusLeaveOfWindow, IsReportedToTheInnerDialogThatHasTheKeyboard)
{
    recorder.onEvent(GUI_EVENT_KEY, -1, [&] {
        ASSERT_EQ(guiDialog("Inner"), 0);
        guiCheck(4, 0, 0, 60, "Inner check");
        app.whenShown("v_dlgbbr", [&](Shown inner) {
            inner.click("Inner check");
            guiClose(0);
        });
        guiRunDialog(recorder.innerDialogHandler());
    });
    runDialog(build, [](Shown dialog) {
        const auto events = eventsDuring([&] {
            dialog.key(XK_F5);
            EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
        });
        EXPECT_THAT(events,
                    ElementsAre(toDialog(GUI_EVENT_KEY, -1, 5), toInnerDialog(GUI_EVENT_INIT),
                                toInnerDialog(GUI_EVENT_LEFT, 1, 1),
                                toInnerDialog(GUI_EVENT_CHECK, 4, 1)));
    });
}

// The dialog is closed with the keyboard in the edit: the window behind it hears of it, which has the
// events by then.
GUI_TEST(FocusLeaveOfWindow, IsReportedWhenTheDialogIsClosed)
{
    recorder.onEvent(GUI_EVENT_COMMAND, 9, [] { guiClose(1); });
    const auto events = eventsOfClosing([](Shown dialog) { dialog.key(XK_Return); });
    EXPECT_THAT(events,
                ElementsAre(toDialog(GUI_EVENT_COMMAND, 9), toWindow(GUI_EVENT_LEFT, 1, 1)));
}

// And with the keyboard somewhere else.
GUI_TEST(FocusLeaveOfWindow, IsNotReportedOnceMoreWhenTheDialogIsClosed)
{
    recorder.onEvent(GUI_EVENT_COMMAND, 3, [] { guiClose(1); });
    const auto events = eventsOfClosing([](Shown) { Robot::instance().click(controlOf(3)); });
    EXPECT_THAT(events, ElementsAre(kLeft1, toDialog(GUI_EVENT_COMMAND, 3)));
}

// A box has taken the keyboard, and the handler closes the dialog right behind it.
GUI_TEST(FocusLeaveOfWindow, ThatWaitsIsReportedWhenTheDialogIsClosed)
{
    recorder.onEvent(GUI_EVENT_KEY, -1, [] {
        showBox();
        guiClose(1);
    });
    const auto events = eventsOfClosing([](Shown dialog) { dialog.key(XK_F5); });
    EXPECT_THAT(events,
                ElementsAre(toDialog(GUI_EVENT_KEY, -1, 5), toWindow(GUI_EVENT_LEFT, 1, 1)));
}

// What waited when a dialog was closed is not left over for the next one.
GUI_TEST(FocusLeaveOfWindow, DoesNotReachTheNextDialog)
{
    recorder.onEvent(GUI_EVENT_COMMAND, 9, [] { guiClose(1); });
    eventsOfClosing([](Shown dialog) { dialog.key(XK_Return); });
    recorder.clear();
    recorder.forgetReactions();
    runDialog([] { guiCheck(4, 0, 0, 60, "Check"); },
              [](Shown dialog) {
                  dialog.key(XK_space);
                  Robot::instance().click(controlOf(4));
              });
    EXPECT_THAT(recorder.events(GUI_EVENT_LEFT), IsEmpty());
}
