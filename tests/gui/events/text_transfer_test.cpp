// Text that is dragged or pasted into the Output area, beside the file names that it takes.

#include <X11/Xatom.h>
#include <Xm/Text.h>

#include "connection.h"
#include "drag.h"
#include "events_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

// Waits until somebody has selected something, as seen from the outside.
bool waitForSelection()
{
    return pumpUntil([] { return XGetSelectionOwner(connection(), XA_PRIMARY) != None; });
}

}  // namespace

GUI_TEST(TextDrop, InsertsTheText)
{
    EXPECT_EQ(guiOutputLineCount(), 0);
    recorder.clear();
    const Drag drag{"text", "dragged"};
    EXPECT_TRUE(pumpUntil([&] { return textOf(app.find("v_text")) == "dragged"; }));
    EXPECT_EQ(guiOutputLineCount(), 1) << "a reader sees it as well";
    settle();
    EXPECT_THAT(recorder.events(), IsEmpty());
}

GUI_TEST(TextDrop, OfAFileNameAsWellRaisesTheEvent)
{
    recorder.clear();
    const Drag drag{"file-and-text", "/tmp/a"};
    EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_DROP)));
    char name[20];
    EXPECT_EQ(guiGetDropName(name, sizeof name), 6);
    EXPECT_STREQ(name, "/tmp/a");
}

GUI_TEST(TextPaste, InsertsTheSelectionOfAnotherClient)
{
    const Process client{{KITE_SELECTION_SOURCE, "selected"}};
    ASSERT_TRUE(waitForSelection());
    recorder.clear();
    robot.click(app.find("v_text"), MiddleButton);
    EXPECT_TRUE(pumpUntil([&] { return textOf(app.find("v_text")) == "selected"; }));
    settle();
    EXPECT_THAT(recorder.events(), IsEmpty());
}

// It answers whatever it is asked for.
GUI_TEST(TextPaste, InsertsTheSelectionOfAClientThatCallsItAFileNameToo)
{
    const Process client{{"xclip", "-selection", "primary", "-quiet"}, {}, "selected"};
    ASSERT_TRUE(waitForSelection());
    robot.click(app.find("v_text"), MiddleButton);
    EXPECT_TRUE(pumpUntil([&] { return textOf(app.find("v_text")) == "selected"; }));
    EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_DROP)));
}

GUI_TEST(TextPaste, InsertsTheSelectionOfItsOwn)
{
    app.type("copy me ");
    recorder.clear();
    Widget const text = app.find("v_text");
    XmTextSetSelection(text, 0, 4, XtLastTimestampProcessed(XtDisplay(text)));
    robot.click(text, MiddleButton);
    EXPECT_TRUE(pumpUntil([&] { return textOf(text) == "copy me copy"; }));
    settle();
    EXPECT_THAT(recorder.events(), IsEmpty());
}
