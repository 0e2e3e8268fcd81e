// guiSetOwner: a host with an Xt application of its own, in this process.

#include <Xm/Form.h>
#include <Xm/LabelG.h>
#include <Xm/Text.h>

#include "events_support.h"
#include "host_application.h"
#include "ignored_leaks.h"

using namespace kite::testing;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

// What the host has made itself.
class OwnApplication {
public:
    OwnApplication()
    {
        XtVaCreateManagedWidget("field", xmTextWidgetClass, shell(), XmNwidth, 300, XmNheight, 200,
                                nullptr);
        XtRealizeWidget(shell());
        toolkit::attach(shell());
        Script::instance().arm();
        wm::waitUntilSettled(shell());
    }
    ~OwnApplication()
    {
        XtDestroyWidget(shell());
        XtDestroyApplicationContext(opened_.context);
    }
    OwnApplication(const OwnApplication&) = delete;
    OwnApplication& operator=(const OwnApplication&) = delete;

    Widget shell() const { return opened_.shell; }

private:
    HostApplication opened_ = openHostApplication();
};

}  // namespace

GUI_STARTUP_TEST(Owner, IsTheParentOfBoxes)
{
    const OwnApplication own;
    guiSetOwner(own.shell());
    app.whenShown("v_askbox", [&](Shown box) {
        EXPECT_EQ(XtParent(box.shell()), own.shell());
        EXPECT_EQ(wm::transientFor(box.widget()), windowOf(own.shell()));
        box.click("Yes");
    });
    EXPECT_EQ(guiYesNoBox("Asked by a host of its own"), GUI_YES);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

GUI_STARTUP_TEST(Owner, MayBeAnyWidget)
{
    const OwnApplication own;
    Widget const field = findWidget("field");
    guiSetOwner(field);
    app.whenShown("v_infobox", [&](Shown box) {
        EXPECT_EQ(XtParent(box.shell()), field);
        box.key(XK_Return);
    });
    guiInfoBox("Below a field");
}

GUI_STARTUP_TEST(Owner, WithoutOneThereIsNoBox)
{
    const OwnApplication own;
    EXPECT_EQ(guiYesNoCancelBox("Nobody sees this"), GUI_CANCEL);
    EXPECT_EQ(findWidget("v_askbox"), nullptr);
}

GUI_STARTUP_TEST(Owner, NullIsIgnored)
{
    const OwnApplication own;
    guiSetOwner(nullptr);
    EXPECT_EQ(guiOkCancelBox("Nobody sees this"), GUI_NO);
    guiSetOwner(own.shell());
    guiSetOwner(nullptr);
    app.whenShown("v_askbox", [](Shown box) { box.click("OK"); });
    EXPECT_EQ(guiOkCancelBox("The owner is still known"), GUI_OK);
}

GUI_STARTUP_TEST(Owner, NewOneReplacesTheOld)
{
    const OwnApplication own;
    guiSetOwner(findWidget("field"));
    guiSetOwner(own.shell());
    app.whenShown("v_infobox", [&](Shown box) {
        EXPECT_EQ(XtParent(box.shell()), own.shell());
        box.key(XK_Return);
    });
    guiInfoBox("Second owner");
}

GUI_STARTUP_TEST(Owner, LoadsTheFontsOfTheFrame)
{
    const OwnApplication own;
    EXPECT_THAT(host.profile().accesses(), IsEmpty());
    guiSetOwner(own.shell());
    for (const char* font : {"fnamm", "fnamn", "fnamt"})
        EXPECT_THAT(host.profile().accesses(font), SizeIs(1)) << font;
}

GUI_STARTUP_TEST(Owner, BoxInABoxBelongsToTheBox)
{
    const OwnApplication own;
    guiSetOwner(own.shell());
    app.whenShown("v_askbox", [&](Shown outer) {
        app.whenShown("v_infobox", [&](Shown inner) {
            EXPECT_EQ(XtParent(inner.shell()), outer.widget());
            inner.key(XK_Return);
        });
        guiInfoBox("Inner");
        outer.click("No");
    });
    EXPECT_EQ(guiYesNoBox("Outer"), GUI_NO);
}

GUI_STARTUP_TEST(Owner, ShowsMisuse)
{
    const OwnApplication own;
    guiSetOwner(own.shell());
    EXPECT_MISUSE(guiGetDropName(nullptr, 10), "GetDropName: invalid buffer", GUI_FAILED);
}

GUI_STARTUP_TEST(Owner, HearsTheUserBreak)
{
    const OwnApplication own;
    guiSetOwner(own.shell());
    ASSERT_TRUE(wm::waitForFocus(own.shell()));
    settle();
    robot.key(XK_F10, Control);
    int isBroken = 0;
    const auto end = std::chrono::steady_clock::now() + patience();
    while (!isBroken && std::chrono::steady_clock::now() < end) isBroken = guiUserBreak();
    EXPECT_EQ(isBroken, 1);
    EXPECT_EQ(guiUserBreak(), 0);
}

GUI_TEST(Owner, DoesNotTakeBoxesFromTheFrame)
{
    Widget const mainWindow = guiGetTopWnd();
    guiSetOwner(app.find("v_statusbar"));
    app.whenShown("v_infobox", [&](Shown box) {
        EXPECT_EQ(XtParent(box.shell()), mainWindow);
        box.key(XK_Return);
    });
    guiInfoBox("Belongs to the top window");
}

// Its own loop serves another application: the timer is one of the frame's.
GUI_TEST(Owner, LeavesTheTimerToTheFrame)
{
    Widget const mainWindow = guiGetTopWnd();
    const OwnApplication own;
    guiSetOwner(own.shell());
    guiTimer(100);
    toolkit::attach(mainWindow);
    EXPECT_TRUE(pumpUntil([&] { return recorder.count(GUI_EVENT_TIMER) >= 2; }));
}

namespace {

void expectNobodyAtHome()
{
    EXPECT_EQ(guiGetTopWnd(), nullptr);
    EXPECT_EQ(guiYesNoBox("?"), GUI_NO);
    EXPECT_EQ(guiUserBreak(), 0);
    guiBeep();
    guiTimer(100);
    guiTimer(0);
}

}  // namespace

GUI_STARTUP_TEST(Owner, ThatIsGoneWithItsDisplayIsNone)
{
    {
        const OwnApplication own;
        guiSetOwner(own.shell());
        guiTimer(100);
        app.whenShown("v_infobox", [](Shown box) { box.key(XK_Return); });
        guiInfoBox("Still here");
    }
    expectNobodyAtHome();
    app.run([&] {
        guiTimer(100);
        EXPECT_TRUE(pumpUntil([&] { return recorder.count(GUI_EVENT_TIMER) >= 1; }));
    });
}

// The host leaves its widgets to the end of the process.
GUI_STARTUP_TEST(Owner, WhoseDisplayIsClosedIsNone)
{
    const IgnoredLeaks widgetsOfAClosedDisplay;
    const auto [context, shell] = openHostApplication();
    XtVaSetValues(shell, XmNwidth, 100, XmNheight, 100, nullptr);
    XtRealizeWidget(shell);
    guiSetOwner(shell);
    guiTimer(100);
    XtCloseDisplay(XtDisplay(shell));
    expectNobodyAtHome();
    XtDestroyApplicationContext(context);
    app.run([] {});
}

// What was to be painted then is not touched any more.
GUI_STARTUP_TEST(Owner, MayCloseItsDisplayWhileATextWaitsToBePainted)
{
    const IgnoredLeaks widgetsOfAClosedDisplay;
    const auto [context, shell] = openHostApplication();
    Widget const text = XtVaCreateManagedWidget("text", xmTextWidgetClass, shell, XmNeditMode,
                                                XmMULTI_LINE_EDIT, nullptr);
    XtRealizeWidget(shell);
    guiSetOwner(shell);
    for (int i = 0; i < 5; ++i) guiHTML2Rich(text, "waits to be painted<br>");
    XtCloseDisplay(XtDisplay(shell));
    XtDestroyApplicationContext(context);
    app.run([] {
        guiWriteLine("painted");
        settle();
    });
}

GUI_STARTUP_TEST(Owner, MayBeAGadget)
{
    const OwnApplication own;
    Widget const shell =
        XtVaAppCreateShell("other", "Other", applicationShellWidgetClass, XtDisplay(own.shell()),
                           XmNwidth, 200, XmNheight, 100, nullptr);
    Widget const form = XtVaCreateManagedWidget("form", xmFormWidgetClass, shell, nullptr);
    Widget const gadget = XtVaCreateManagedWidget("gadget", xmLabelGadgetClass, form, nullptr);
    XtRealizeWidget(shell);
    toolkit::attach(shell);
    Script::instance().arm();
    guiSetOwner(gadget);
    app.whenShown("v_askbox", [&](Shown shown) {
        EXPECT_EQ(XtParent(shown.shell()), form);
        shown.click("Yes");
    });
    EXPECT_EQ(guiYesNoBox("?"), GUI_YES);
    XtDestroyWidget(shell);
}

GUI_STARTUP_TEST(Owner, ThatGoesLeavesTheFrameItsDisplay)
{
    app.run([&] {
        Widget const mainWindow = guiGetTopWnd();
        {
            const OwnApplication own;
            guiSetOwner(own.shell());
        }
        toolkit::attach(mainWindow);
        guiBeep();
        app.whenShown("v_infobox", [](Shown box) { box.key(XK_Return); });
        guiInfoBox("On the frame");
        EXPECT_EQ(guiUserBreak(), 0);
    });
}

namespace {

// A window of the host's on the frame's display, which is closed with the frame.
Widget makeShellBesideTheFrame()
{
    Widget const shell =
        XtVaAppCreateShell("beside", "Beside", applicationShellWidgetClass, toolkit::display(),
                           XmNwidth, 100, XmNheight, 100, nullptr);
    XtRealizeWidget(shell);
    return shell;
}

}  // namespace

GUI_STARTUP_TEST(Owner, OnTheDisplayOfTheFrameGoesWithIt)
{
    const IgnoredLeaks widgetsOfAClosedDisplay;
    app.run([] { guiSetOwner(makeShellBesideTheFrame()); });
    expectNobodyAtHome();
    app.run([] {});
}

GUI_STARTUP_TEST(Owner, NoTopWindowOutlivesItsDisplay)
{
    const IgnoredLeaks widgetsOfAClosedDisplay;
    app.run([] {
        Widget const beside = makeShellBesideTheFrame();
        guiClose(0);
        guiSetTopWnd(beside);
    });
    expectNobodyAtHome();
    app.run([] {});
}

namespace {

// The font that the library gave a button: one of its own, by its address.
const void* fontOf(Widget button)
{
    XmFontContext context = nullptr;
    if (!XmFontListInitFontContext(&context, resource<XmFontList>(button, XmNfontList)))
        return nullptr;
    XmFontType type{};
    const void* const font = XmFontListEntryGetFont(XmFontListNextEntry(context), &type);
    XmFontListFreeFontContext(context);
    return font;
}

}  // namespace

// The display and its fonts are the new owner's.
GUI_STARTUP_TEST(Owner, OldOneMayGo)
{
    const OwnApplication own;
    Widget const old = XtVaCreateWidget("old", xmTextWidgetClass, own.shell(), nullptr);
    guiSetOwner(old);
    guiSetOwner(own.shell());
    const auto fontOfBox = [&] {
        const void* font = nullptr;
        app.whenShown("v_infobox", [&](Shown box) {
            font = fontOf(box.child("OK"));
            box.key(XK_Return);
        });
        guiInfoBox("Whose font?");
        return font;
    };
    const void* const before = fontOfBox();
    ASSERT_NE(before, nullptr);
    XtDestroyWidget(old);
    EXPECT_EQ(fontOfBox(), before);
}
