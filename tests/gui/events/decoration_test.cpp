// decorWindow: the window that the window manager puts around the frame. Run under several managers.

#include "connection.h"
#include "events_support.h"

using namespace kite::testing;

namespace {

constexpr int kUnknown = 666;

int parentOfShell()
{
    return static_cast<int>(parentOf(windowOf(App::instance().shell())));
}

}  // namespace

GUI_STARTUP_TEST(Decoration, IsUnknownAtFirst)
{
    EXPECT_EQ(decorWindow, kUnknown);
}

GUI_TEST(Decoration, IsTheParentThatTheWindowManagerGaveTheFrame)
{
    EXPECT_NE(parentOfShell(), static_cast<int>(rootWindow()));
    EXPECT_EQ(decorWindow, parentOfShell());
}

GUI_STARTUP_TEST(Decoration, IsLearntInTheLoopOfABox)
{
    guiInit(app.hostCallback);
    EXPECT_EQ(decorWindow, kUnknown);
    script.arm();
    app.whenShown("v_infobox", [&](Shown box) {
        EXPECT_EQ(decorWindow, parentOfShell());
        box.key(XK_Return);
    });
    guiInfoBox("The first loop of this program");
    EXPECT_EQ(decorWindow, parentOfShell());
}

GUI_TEST(Decoration, OfABoxIsNotTheFrames)
{
    app.whenShown("v_infobox", [](Shown box) {
        EXPECT_EQ(decorWindow, parentOfShell());
        box.key(XK_Return);
    });
    guiInfoBox("With a decoration of its own");
    EXPECT_EQ(decorWindow, parentOfShell());
}
