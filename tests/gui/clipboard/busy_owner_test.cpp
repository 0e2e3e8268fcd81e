// Owners of the clipboard that are slow to answer, or never do.

#include <csignal>

#include "operations/dialog_plan.h"
#include "text_kinds.h"

using namespace kite::testing;

namespace {

// All that is asked of an owner, with what comes of it when it does not answer.
void expectNothingThere(Widget text)
{
    char buffer[] = "####";
    EXPECT_EQ(guiClipLines(), 0);
    EXPECT_EQ(guiPasteText(buffer, sizeof buffer, 1), 0);
    EXPECT_STREQ(buffer, "");
    const std::string before = textOf(text);
    guiPasteSel(text);
    EXPECT_EQ(textOf(text), before);
}

// The same one by one, and what appending leaves.
std::vector<std::function<void()>> callsForNothing(Widget output)
{
    return {[] { EXPECT_EQ(guiClipLines(), 0); }, [] { EXPECT_EQ(clipLine(1), "[0]"); },
            [=] {
                guiPasteSel(output);
                EXPECT_EQ(textOf(output), "");
            },
            [] {
                guiCopyAppText("x");
                EXPECT_EQ(pastedByXclip(), "x\n");
            }};
}

}  // namespace

GUI_TEST(BusyOwner, ThatDoesNotAnswerHasNothing)
{
    Widget const output = app.find("v_text");

    // That is frozen has nothing.
    {
        setSelectionPatience(milliseconds{150});
        Client client{{"own", "STRING", "abc"}};
        client->send(SIGSTOP);
        expectNothingThere(output);
        EXPECT_TRUE(isClipboardFree());
        guiCopyAppText("x");
        EXPECT_EQ(pastedByXclip(), "x\n");
        EXPECT_TRUE(isClipboardFree());
        client->send(SIGCONT);
    }

    // That dies when it is asked has nothing.
    {
        setSelectionPatience(milliseconds{300});
        for (const auto& call : callsForNothing(output)) {
            Client client{{"own-and-die", "STRING", "abc"}};
            call();
            EXPECT_TRUE(client->wait());
            EXPECT_TRUE(isClipboardFree());
        }
    }

    // It has told the length, and then has nothing to give.
    {
        for (const auto& call : callsForNothing(output)) {
            const Client client{{"own-and-clear", "STRING", "abc"}};
            call();
            EXPECT_TRUE(isClipboardFree());
        }
    }
}

GUI_TEST(BusyOwner, LetsEventsPassButNoOtherUseOfTheClipboard)
{
    Client client{{"own", "STRING", "abc\ndef"}};
    client->send(SIGSTOP);
    guiWriteText("output");
    Widget const output = app.find("v_text");
    int timeouts = 0;
    recorder.onEvent(GUI_EVENT_TIMER, [&] {
        guiTimer(0);
        ++timeouts;
        expectNothingThere(output);
        guiCopyText("from the handler");
        guiCopyAppText("from the handler");
        select(output, 0, 3);
        guiCopySel(output);
        guiCutSel(output);
        EXPECT_EQ(textOf(output), "output");
        client->send(SIGCONT);
    });
    guiTimer(100);
    EXPECT_EQ(guiClipLines(), 2);
    EXPECT_EQ(timeouts, 1);
    EXPECT_EQ(clipLine(2), "def") << "it is still the client's";
    EXPECT_TRUE(isClipboardFree());

    // Afterwards all is as usual.
    guiCutSel(output);
    EXPECT_EQ(pastedByXclip(), "out");
    EXPECT_EQ(textOf(output), "put");
}

// The text that is to be pasted into goes while its text is awaited.
GUI_TEST(BusyOwner, MayOutliveTheDialogThatWaitsForIt)
{
    Client client{{"own", "STRING", "abc"}};
    client->send(SIGSTOP);
    Widget shell = nullptr;
    recorder.onEvent(GUI_EVENT_TIMER, [&] {
        guiTimer(0);
        XtDestroyWidget(shell);
        client->send(SIGCONT);
    });
    recorder.onEvent(GUI_EVENT_COMMAND, 2, [&] {
        guiTimer(100);
        guiPasteSel(innerOf(1));
    });
    ASSERT_EQ(guiDialog("Dialog"), 0);
    guiEdit(1, 0, 0, 80, 0, 0);
    guiButton(2, 1, 0, 40, "Paste", 0);
    app.whenShown("v_dlgbbr", [&](Shown dialog) {
        shell = dialog.shell();
        dialog.click("Paste");
    });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 0);
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
    EXPECT_TRUE(isClipboardFree());
    EXPECT_EQ(guiClipLines(), 1);
}

GUI_STARTUP_TEST(BusyOwner, MayOutliveTheFrameThatWaitsForIt)
{
    app.run([this] {
        Client client{{"own", "STRING", "abc"}};
        client->send(SIGSTOP);
        setSelectionPatience(milliseconds{600});
        recorder.onEvent(GUI_EVENT_TIMER, [] { guiClose(0); });
        guiTimer(100);
        EXPECT_EQ(guiClipLines(), 0);
        EXPECT_FALSE(guiGetTopWnd());
        client->send(SIGCONT);
    });
}

// It has no window yet that could stand for us.
GUI_TEST(PasteSelection, WorksWhileADialogIsFilled)
{
    guiCopyText("abc");
    recorder.onEvent(GUI_EVENT_INIT, [] { guiPasteSel(innerOf(1)); });
    ASSERT_EQ(guiDialog("Dialog"), 0);
    guiEdit(1, 0, 0, 80, 0, 0);
    app.whenShown("v_dlgbbr", [](Shown) {
        EXPECT_EQ(textOf(innerOf(1)), "abc\n");
        guiClose(1);
    });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 1);
}
