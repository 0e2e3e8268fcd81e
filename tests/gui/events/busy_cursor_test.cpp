// The watch at the pointer while the host callback runs.

#include <X11/cursorfont.h>

#include <cstdlib>

#include "events_support.h"
#include "pointer_picture.h"

using namespace kite::testing;

namespace {

// A theme's watch may move, and then no two pictures of it are the same. Without themes it is the shape
// of the cursor font. Xlib asks once in a process: this comes first.
[[maybe_unused]] const int withoutThemes = setenv("XCURSOR_PATH", "/nonexistent", 1);

const PointerPicture& watch()
{
    static const PointerPicture picture = pictureOfShape(XC_watch);
    return picture;
}

// What the library has asked for has reached the server.
bool isWatchNow()
{
    XSync(toolkit::display(), False);
    return pointerPicture() == watch();
}

// Patiently: a window manager that grabs the pointer for a moment shows a cursor of its own.
bool becomesWatch()
{
    XSync(toolkit::display(), False);
    return pointerBecomes(watch());
}

// At its upper left corner, where nothing lies over it.
void pointAt(const char* name)
{
    Widget const widget = findWidget(name);
    Robot::instance().moveTo(widget, Point{5, 5});
    const Rect rect = rectOf(widget);
    pointTo({rect.x + 5, rect.y + 5});
}

}  // namespace

GUI_STARTUP_TEST(BusyCursor, ShowsWhileTheHostCallbackRuns)
{
    app.windowHandler = nullptr;
    app.run([&] {
        watch();
        pointAt("v_text");
        const PointerPicture usual = pointerPicture();
        ASSERT_NE(usual, watch());

        bool wasShown = false;
        recorder.onEvent(GUI_EVENT_COMMAND, -2, [&] { wasShown = pointerBecomes(watch()); });
        app.key(XK_F2);
        EXPECT_TRUE(wasShown);
        EXPECT_TRUE(pointerBecomes(usual));
    });
}

GUI_STARTUP_TEST(BusyCursor, CoversAllPartsOfTheFrame)
{
    app.windowHandler = nullptr;
    app.run([&] {
        watch();
        recorder.onEvent(GUI_EVENT_COMMAND, 1, [&] {
            for (const char* part : {"v_text", "v_gauge", "v_statusbar"}) {
                pointAt(part);
                EXPECT_TRUE(becomesWatch()) << part;
            }
        });
        raiseEvent(GUI_EVENT_COMMAND, 1);
        EXPECT_EQ(recorder.count(toHost(GUI_EVENT_COMMAND, 1)), 1);
    });
}

GUI_STARTUP_TEST(BusyCursor, ShowsWhileTheFrameIsBuilt)
{
    app.windowHandler = nullptr;
    app.init();
    watch();
    pointAt("v_text");
    bool wasShown = false;
    recorder.onEvent(GUI_EVENT_INIT, 0, [&] { wasShown = pointerBecomes(watch()); });
    app.run([] { EXPECT_FALSE(isWatchNow()); });
    EXPECT_TRUE(wasShown);
}

GUI_TEST(BusyCursor, IsNotForWindowHandlers)
{
    watch();
    pointAt("v_text");
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] { EXPECT_FALSE(isWatchNow()); });
    app.key(XK_F2);
    EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_COMMAND, -2)), 1);
}

GUI_TEST(BusyCursor, IsOnTheBoxThatIsOpenAndNotOnTheFrame)
{
    watch();
    app.whenShown("v_infobox", [&](Shown box) {
        recorder.onEvent(GUI_EVENT_COMMAND, 1, [&] {
            pointAt("v_infobox");
            EXPECT_TRUE(becomesWatch());
            pointAt("v_statusbar");
            EXPECT_FALSE(isWatchNow());
        });
        raiseEvent(GUI_EVENT_COMMAND, 1);
        pointAt("v_infobox");
        EXPECT_FALSE(isWatchNow());
        box.key(XK_Return);
    });
    guiInfoBox("The box is the top window");
    EXPECT_EQ(recorder.count(toHost(GUI_EVENT_COMMAND, 1)), 1);
}

GUI_STARTUP_TEST(BusyCursor, IsNotOnTheBoxThatTheHostCallbackOpens)
{
    app.windowHandler = nullptr;
    app.run([&] {
        watch();
        recorder.onEvent(GUI_EVENT_COMMAND, 1, [] { guiInfoBox("Answer me"); });
        app.whenShown("v_infobox", [](Shown box) {
            pointAt("v_infobox");
            EXPECT_FALSE(isWatchNow());
            pointAt("v_statusbar");
            EXPECT_TRUE(becomesWatch());
            box.key(XK_Return);
        });
        raiseEvent(GUI_EVENT_COMMAND, 1);
        pointAt("v_statusbar");
        EXPECT_FALSE(isWatchNow());
    });
}

// A dialog that gets its first event is not shown yet: the window below it says that the host works.
GUI_TEST(BusyCursor, IsOnTheWindowBelowADialogThatIsNotShownYet)
{
    watch();
    pointAt("v_text");
    guiSetTopWnd(makeWindow(nullptr));
    bool atInit = false;
    bool atOthers = false;
    recorder.onEvent(GUI_EVENT_INIT, 0, [&] { atInit = becomesWatch(); });
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [&] { atOthers = isWatchNow(); });
    raiseEvent(GUI_EVENT_INIT);
    EXPECT_TRUE(atInit);
    EXPECT_FALSE(isWatchNow());
    raiseEvent(GUI_EVENT_COMMAND, 1);
    EXPECT_FALSE(atOthers);
}

GUI_STARTUP_TEST(BusyCursor, StaysWhenANestedEventIsDropped)
{
    app.windowHandler = nullptr;
    app.run([&] {
        watch();
        pointAt("v_text");
        bool wasShown = false;
        recorder.onEvent(GUI_EVENT_COMMAND, 1, [&] {
            raiseEvent(GUI_EVENT_COMMAND, 2);
            wasShown = becomesWatch();
        });
        raiseEvent(GUI_EVENT_COMMAND, 1);
        EXPECT_TRUE(wasShown);
        EXPECT_FALSE(isWatchNow());
    });
}

GUI_STARTUP_TEST(BusyCursor, ComesAgainWithTheNextEvent)
{
    app.windowHandler = nullptr;
    app.run([&] {
        watch();
        pointAt("v_text");
        int shown = 0;
        recorder.onEvent(GUI_EVENT_COMMAND, [&] { shown += becomesWatch(); });
        for (int i = 0; i < 3; ++i) raiseEvent(GUI_EVENT_COMMAND, 1);
        EXPECT_EQ(shown, 3);
    });
}

// No window is left to take the watch from; an X error would fail the test.
GUI_STARTUP_TEST(BusyCursor, FrameMayCloseWhileItShows)
{
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.onEvent(GUI_EVENT_COMMAND, -2, [] { guiClose(0); });
        app.key(XK_F2);
        EXPECT_EQ(guiGetTopWnd(), nullptr);
    });
}
