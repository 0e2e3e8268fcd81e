// guiStartDialog: a dialog that runs when the running handler has returned.

#include <X11/cursorfont.h>

#include <cstdlib>

#include "dialogs_support.h"
#include "events/pointer_picture.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

constexpr int kStart = 1;
constexpr int kPlugin = 102;

// A theme's watch may move, and then no two pictures of it are the same. Xlib asks once in a process.
[[maybe_unused]] const int withoutThemes = setenv("XCURSOR_PATH", "/nonexistent", 1);

void request(const char* title = "Started")
{
    buildDialog(title);
    EXPECT_EQ(guiStartDialog(), 0);
}

GuiPlugin markedPlugin()
{
    return plugin<1>([](GuiHandler dispatch) {
        dispatch(GUI_EVENT_COMMAND, kPlugin, 0, 0);
        return 0;
    });
}

}  // namespace

GUI_TEST(StartDialog, RunsWhenTheHandlerHasReturned)
{
    bool hasReturned = false;
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, kStart, [&] {
        request();
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
        EXPECT_TRUE(holdsFor([] { return !isShown(board()); }, milliseconds{100}));
        EXPECT_EQ(recorder.count(GUI_EVENT_INIT), 0);
    });
    app.whenShown("v_dlgbbr", [&](Shown dialog) {
        EXPECT_FALSE(hasReturned);
        EXPECT_EQ(guiGetTopWnd(), dialog.widget());
        EXPECT_EQ(resource<XtPointer>(dialog.widget(), XmNuserData), nullptr);
        guiClose(1);
    });
    raiseEvent(GUI_EVENT_COMMAND, kStart);
    hasReturned = true;
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, kStart), toHost(GUI_EVENT_INIT)));
    raiseEvent(GUI_EVENT_COMMAND, 2);  // it runs once
    EXPECT_EQ(recorder.events().size(), 3U);
}

GUI_STARTUP_TEST(StartDialog, RunsWhenTheHostCallbackHasReturned)
{
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.clear();
        recorder.onEvent(GUI_EVENT_COMMAND, kStart, [] { request(); });
        recorder.onEvent(GUI_EVENT_COMMAND, 9, [] { guiClose(1); });
        app.whenShown("v_dlgbbr", [](Shown) { raiseEvent(GUI_EVENT_COMMAND, 9); });
        raiseEvent(GUI_EVENT_COMMAND, kStart);
        EXPECT_THAT(recorder.events(),
                    ElementsAre(toHost(GUI_EVENT_COMMAND, kStart), toHost(GUI_EVENT_INIT),
                                toHost(GUI_EVENT_COMMAND, 9)));
        EXPECT_FALSE(board());
    });
}

GUI_TEST(StartDialog, TakesTheKeyboardAndTheMouse)
{
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] { request(); });
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [] { guiClose(1); });
    app.whenShown("v_dlgbbr", [](Shown dialog) { dialog.click("OK"); });
    app.key(XK_F2);
    EXPECT_TRUE(app.waitForEvent(toHost(GUI_EVENT_COMMAND, 1)));
    EXPECT_TRUE(pumpUntil([] { return !board(); }));
}

GUI_TEST(StartDialog, MayBeAskedForInAnyDialog)
{
    // May start the next from its own handlers.
    {
        std::vector<std::string> titles;
        recorder.onEvent(GUI_EVENT_COMMAND, kStart, [] { request("First"); });
        recorder.onEvent(GUI_EVENT_COMMAND, 5, [] { request("Second"); });
        app.whenShown("v_dlgbbr", [&](Shown first) {
            titles.push_back(first.title());
            app.whenShown("v_dlgbbr", [&](Shown second) {
                titles.push_back(second.title());
                EXPECT_EQ(XtParent(second.shell()), first.widget());
                guiClose(2);
            });
            raiseEvent(GUI_EVENT_COMMAND, 5);
            EXPECT_EQ(guiGetTopWnd(), first.widget());
            guiClose(1);
        });
        raiseEvent(GUI_EVENT_COMMAND, kStart);
        EXPECT_THAT(titles, ElementsAre("First", "Second"));
    }

    recorder.forgetReactions();
    // In the first event runs before the dialog is shown.
    {
        std::vector<std::string> titles;
        recorder.onEvent(GUI_EVENT_INIT, [](const Event& event) {
            if (event.handler == Handler::Dialog) request("Inner");
        });
        for (int i = 0; i < 2; ++i)
            app.whenShown("v_dlgbbr", [&](Shown dialog) {
                titles.push_back(dialog.title());
                guiClose(3);
            });
        buildDialog("Outer");
        EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 3);
        EXPECT_THAT(titles, ElementsAre("Inner", "Outer"));
    }
}

GUI_TEST(StartDialog, KnowsWhichHandlerAskedForIt)
{
    // The box is the handler's own: what it has asked for waits for its end.
    {
        recorder.clear();
        recorder.onEvent(GUI_EVENT_COMMAND, kStart, [&] {
            request();
            guiTimer(100);
            guiInfoBox("Not yet");
            guiTimer(0);
            EXPECT_EQ(recorder.count(GUI_EVENT_INIT), 0);
        });
        app.whenShown("v_infobox", [&](Shown box) {
            EXPECT_TRUE(pumpUntil([&] { return recorder.count(GUI_EVENT_TIMER) >= 2; }));
            EXPECT_FALSE(isShown(board()));
            EXPECT_EQ(guiGetTopWnd(), box.widget());
            box.key(XK_Return);
        });
        bool wasShown = false;
        app.whenShown("v_dlgbbr", [&](Shown) {
            wasShown = true;
            guiClose(1);
        });
        raiseEvent(GUI_EVENT_COMMAND, kStart);
        EXPECT_TRUE(wasShown);
    }

    recorder.forgetReactions();
    recorder.clear();
    // Runs inside the box when a handler there asks for it.
    recorder.onEvent(GUI_EVENT_TIMER, [] {
        guiTimer(0);
        request();
    });
    app.whenShown("v_dlgbbr", [](Shown dialog) {
        EXPECT_STREQ(XtName(XtParent(dialog.shell())), "v_infobox");
        guiClose(1);
    });
    app.whenShown("v_infobox", [&](Shown box) {
        guiTimer(100);
        EXPECT_TRUE(app.waitForEvent(toHost(GUI_EVENT_INIT)));
        EXPECT_TRUE(pumpUntil([] { return !board(); }));
        box.key(XK_Return);
    });
    guiInfoBox("Waiting");
}

// Both asked for in one handler: the dialog is first, and its first event is the one that the plug-in
// waits for.
GUI_TEST(StartDialog, ComesBeforeAPlugin)
{
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] {
        guiStartPlugin(markedPlugin());
        request();
    });
    app.whenShown("v_dlgbbr", [](Shown) { guiClose(1); });
    app.key(XK_F2);
    EXPECT_TRUE(wm::waitForFocus(app.shell()));
    app.key(XK_F3);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, -2), toHost(GUI_EVENT_INIT),
                            toHost(GUI_EVENT_COMMAND, kPlugin), toWindow(GUI_EVENT_COMMAND, -3)));
}

GUI_TEST(StartDialog, ServesOneRequestOnce)
{
    // Asked for outside handlers runs after the next event.
    recorder.clear();
    request();
    EXPECT_TRUE(holdsFor([] { return !isShown(board()); }, milliseconds{100}));
    recorder.onEvent(GUI_EVENT_INIT, [] { guiClose(1); });
    raiseEvent(GUI_EVENT_COMMAND, 5);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, 5), toHost(GUI_EVENT_INIT)));

    recorder.forgetReactions();
    // No code is negative: nothing is reported to the host.
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, kStart, [] { request(); });
    app.whenShown("v_dlgbbr", [](Shown) {
        EXPECT_MISUSE(guiClose(-3), "Close: negative return code - 0 is used");
    });
    raiseEvent(GUI_EVENT_COMMAND, kStart);
    EXPECT_EQ(recorder.count(toHost(GUI_EVENT_INIT, -1)), 0);
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
}

// The dialog is not there to show that the host works: the window below it does.
GUI_TEST(StartDialog, FirstEventShowsTheWatchOnTheWindowBelow)
{
    const PointerPicture watch = pictureOfShape(XC_watch);
    const Rect text = rectOf(app.find("v_text"));
    pointTo({text.x + 5, text.y + 5});
    bool wasShown = false;
    recorder.onEvent(GUI_EVENT_INIT, [&] { wasShown = pointerBecomes(watch); });
    recorder.onEvent(GUI_EVENT_COMMAND, kStart, [] { request(); });
    bool isGone = false;
    app.whenShown("v_dlgbbr", [&](Shown) {
        XSync(toolkit::display(), False);
        pointTo({text.x + 5, text.y + 5});
        isGone = waitUntil([&] { return pointerPicture() != watch; });
        guiClose(1);
    });
    raiseEvent(GUI_EVENT_COMMAND, kStart);
    EXPECT_TRUE(wasShown);
    EXPECT_TRUE(isGone);
}

// While the host callback runs, nothing else reaches it, not even the first event of a dialog.
GUI_TEST(StartDialog, DialogInItsHostCallbackGetsNoEvents)
{
    std::vector<std::string> titles;
    app.whenShown("v_dlgbbr", [&](Shown inner) {
        titles.push_back(inner.title());
        inner.click("OK");
        settle();
        EXPECT_TRUE(recorder.events().empty());
        guiClose(1);
    });
    app.whenShown("v_dlgbbr", [&](Shown outer) {
        titles.push_back(outer.title());
        guiClose(2);
    });
    recorder.onEvent(GUI_EVENT_COMMAND, kStart, [] { request("Outer"); });
    recorder.onEvent(GUI_EVENT_INIT, [&] {
        recorder.clear();
        buildDialog("Inner");
        EXPECT_EQ(guiRunDialog(nullptr), 1);
    });
    raiseEvent(GUI_EVENT_COMMAND, kStart);
    EXPECT_THAT(titles, ElementsAre("Inner", "Outer"));
}
