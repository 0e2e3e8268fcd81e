// Boxes that vanish while they wait: the call returns as if the window had been closed.

#include "box_kinds.h"

using namespace kite::testing;

namespace {

int endedBy(const BoxKind& kind, const std::function<void(Shown)>& end)
{
    SCOPED_TRACE(kind.call);
    Script::instance().whenShown(kind.widget, end);
    return kind.ask("Still there?");
}

void destroyShell(Shown box)
{
    XtDestroyWidget(box.shell());
}

}  // namespace

GUI_TEST(BoxTakenAway, DestroyedShellClosesTheBox)
{
    for (const BoxKind& kind : allBoxes()) {
        EXPECT_EQ(endedBy(kind, destroyShell), kind.whenClosed) << kind.call;
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd")) << kind.call;
        EXPECT_FALSE(findWidget(kind.widget)) << kind.call;
    }
}

GUI_TEST(BoxTakenAway, BufferIsEmptyThen)
{
    char buffer[16] = "abc";
    app.whenShown("v_promptbox", [](Shown box) {
        box.type("def");
        destroyShell(box);
    });
    EXPECT_EQ(guiGetTextBox("Name", buffer, sizeof buffer, 0), -1);
    EXPECT_STREQ(buffer, "");
}

GUI_TEST(BoxTakenAway, CloseOfTheHostClosesTheBox)
{
    Widget const main = app.find("v_mainwnd");
    for (const BoxKind& kind : allBoxes()) {
        EXPECT_EQ(endedBy(kind, [](Shown) { guiClose(0); }), kind.whenClosed) << kind.call;
        EXPECT_EQ(guiGetTopWnd(), main) << kind.call;
        EXPECT_TRUE(isShown(main)) << kind.call;
    }
}

GUI_TEST(BoxTakenAway, CloseOfTheHostClosesTheInnermostBox)
{
    whileShown(boxKind("guiInfoBox"), [](Shown outer) {
        EXPECT_EQ(endedBy(boxKind("guiYesNoCancelBox"), [](Shown) { guiClose(0); }), -1);
        EXPECT_TRUE(isShown(outer.widget()));
        EXPECT_EQ(guiGetTopWnd(), outer.widget());
    });
}

GUI_TEST(BoxTakenAway, DestroyedOuterBoxTakesTheInnerOneAlong)
{
    int inner = -5;
    app.whenShown("v_infobox", [&](Shown outer) {
        inner = endedBy(boxKind("guiYesNoCancelBox"), [&](Shown) { destroyShell(outer); });
    });
    guiInfoBox("Outer");
    EXPECT_EQ(inner, -1);
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
}

// From a handler, as a host does it that loses its connection.
GUI_TEST(BoxTakenAway, FrameClosedFromATimerClosesTheBox)
{
    recorder.onEvent(GUI_EVENT_TIMER, [&] {
        guiSetTopWnd(findWidget("v_mainwnd"));
        guiClose(0);
    });
    const int answer = endedBy(boxKind("guiYesNoCancelBox"), [](Shown) { guiTimer(100); });
    EXPECT_EQ(answer, -1);
    EXPECT_FALSE(guiGetTopWnd());
    EXPECT_FALSE(app.shell());
}

// One test for each, as each ends the application.
#define FRAME_CLOSED_TEST(name, call)                                                              \
    GUI_TEST(BoxTakenAway, name)                                                                   \
    {                                                                                              \
        const BoxKind& kind = boxKind(call);                                                       \
        const int answer = endedBy(kind, [](Shown) {                                               \
            guiClose(0);                                                                           \
            guiClose(0);                                                                           \
        });                                                                                        \
        EXPECT_EQ(answer, kind.whenClosed);                                                        \
        EXPECT_FALSE(guiGetTopWnd());                                                              \
    }

FRAME_CLOSED_TEST(ClosedFrameClosesInfoBox, "guiInfoBox")
FRAME_CLOSED_TEST(ClosedFrameClosesErrorBox, "guiErrorBox")
FRAME_CLOSED_TEST(ClosedFrameClosesOkCancelBox, "guiOkCancelBox")
FRAME_CLOSED_TEST(ClosedFrameClosesYesNoBox, "guiYesNoBox")
FRAME_CLOSED_TEST(ClosedFrameClosesYesNoCancelBox, "guiYesNoCancelBox")
FRAME_CLOSED_TEST(ClosedFrameClosesPrompt, "guiGetTextBox")
