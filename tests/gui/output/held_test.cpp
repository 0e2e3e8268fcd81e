// What can happen to a text while its painting waits.

#include <Xm/Text.h>

#include <random>

#include "painting_support.h"

using namespace kite::testing;

namespace {

void writeLines(int count)
{
    for (int i = 0; i < count; ++i) guiWriteLine("waits to be painted");
}

// What the server has sent, but no time-outs: they would paint.
void processXEvents()
{
    XSync(toolkit::display(), False);
    while (XtAppPending(toolkit::context()) & XtIMXEvent)
        XtAppProcessEvent(toolkit::context(), XtIMXEvent);
}

void expectAllPainted(const std::string& after)
{
    guiUserBreak();
    settle();
    expectPainted(after);
}

}  // namespace

GUI_STARTUP_TEST(Held, IsExposed)
{
    app.init();
    Widget const text = outputText();
    writeLines(5);
    for (const int height : {0, 8, 50}) {
        writeLines(2);
        XClearArea(XtDisplay(text), XtWindow(text), 0, 0, 100, static_cast<unsigned>(height), True);
        processXEvents();
        expectAllPainted("exposed " + std::to_string(height));
    }
}

GUI_STARTUP_TEST(Held, IsResized)
{
    app.init();
    for (const int height : {400, 250, 500, 220}) {
        writeLines(30);
        guiMoveWin(-1, -1, height + 100, height);
        processXEvents();
        ASSERT_TRUE(
            pumpUntil([&] { return resource<Dimension>(app.shell(), XmNheight) == height; }));
        writeLines(3);
        expectAllPainted("resized " + std::to_string(height));
    }
}

GUI_STARTUP_TEST(Held, IsChangedByTheHostsOwnCalls)
{
    app.init();
    Widget const text = outputText();
    const std::function<void()> changes[] = {
        [&] { XmTextInsert(text, 0, const_cast<char*>("beginning\n")); },
        [&] { XmTextSetTopCharacter(text, 0); },
        [&] { XmTextScroll(text, 5); },
        [&] { XmTextShowPosition(text, 0); },
        [&] { XtVaSetValues(text, XmNtopCharacter, 0, nullptr); },
        [&] { XtVaSetValues(text, XmNcursorPosition, 3, nullptr); },
        [&] { XtVaSetValues(text, XmNmarginWidth, 20, nullptr); },
        [&] { XtVaSetValues(text, XmNwordWrap, True, nullptr); },
        [&] { XmTextSetHighlight(text, 3, 30, XmHIGHLIGHT_SECONDARY_SELECTED); },
        [&] { XmTextSetEditable(text, False); },
        [&] { XmTextDisableRedisplay(text); },
        [&] { XmTextEnableRedisplay(text); },
        [&] { XmTextEnableRedisplay(text); },
        [&] { XmTextSetString(text, const_cast<char*>("anew")); },
    };
    int number = 0;
    for (const auto& change : changes) {
        writeLines(40);
        change();
        writeLines(1);
        if (++number == 11) continue;  // the host holds it too
        expectAllPainted("change " + std::to_string(number));
    }
}

GUI_TEST(Held, IsDestroyed)
{
    writeLines(3);
    XtDestroyWidget(outputText());
    writeLines(3);
    guiUserBreak();
    settle();
    guiUserBreak();
}

GUI_STARTUP_TEST(Held, IsDestroyedOutsideAnyLoop)
{
    app.init();
    writeLines(3);
    XtDestroyWidget(outputText());
    guiUserBreak();
    settle();
}

GUI_STARTUP_TEST(Held, IsClosedWithItsFrame)
{
    for (int frame = 0; frame < 3; ++frame) {
        app.run([] { writeLines(3); });
        guiWriteLine("no frame");
    }
    app.init();
    writeLines(3);
    guiClose(0);
    EXPECT_EQ(guiStart(nullptr), 0);
    app.run([] {
        EXPECT_EQ(output(), "");
        writeLines(3);
        expectAllPainted("the next frame");
    });
}

GUI_TEST(Held, IsClosedByItsHandler)
{
    recorder.onEvent(GUI_EVENT_COMMAND, 5, [] {
        writeLines(3);
        guiClose(0);
        writeLines(3);
    });
    guiRunPlugin([](GuiHandler dispatch) { return dispatch(GUI_EVENT_COMMAND, 5, 0, 0); });
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

// A host whose callback for changes reads, writes elsewhere and shows boxes.
GUI_TEST(Held, IsReadInACallbackOfTheHosts)
{
    static int lines = 0;
    XtAddCallback(
        outputText(), XmNvalueChangedCallback,
        [](Widget, XtPointer, XtPointer) {
            lines = guiOutputLineCount();
            guiSetStatusLine(std::to_string(lines).c_str());
        },
        nullptr);
    writeLines(5);
    EXPECT_EQ(lines, 5);
    guiWriteHTML("a<br>b<br>c");
    EXPECT_EQ(lines, 8);
    expectAllPainted("callback");
}

// Any order of anything: at the end the screen shows what the text would paint from nothing.
GUI_TEST(Held, IsPaintedWhateverCameBefore)
{
    std::mt19937 random{20};
    const auto number = [&](int below) {
        return static_cast<int>(random() % static_cast<unsigned>(below));
    };
    Widget const text = outputText();
    const std::function<void()> steps[] = {
        [&] { guiWriteLine(std::string(static_cast<std::size_t>(number(90)), 'w').c_str()); },
        [&] { guiWriteLine("line"); },
        [&] { guiWriteText("text"); },
        [&] { guiWriteSel("s\n"); },
        [&] { guiWriteHTML("<p>h<li>i"); },
        [&] { guiSelOutputLine(number(30), number(9), number(40)); },
        [&] { selectOutput(number(20), number(200)); },
        [&] { XmTextScroll(text, number(21) - 10); },
        [&] { XmTextSetInsertionPosition(text, number(300)); },
        [&] { XmTextReplace(text, number(9), 9 + number(30), const_cast<char*>("a\nb")); },
        [&] { guiOutputLineCount(); },
    };
    for (int round = 0; round < 25; ++round) {
        for (int step = 0; step < 40; ++step) steps[number(std::size(steps))]();
        if (round % 5 == 4) guiClearOutput();
        expectAllPainted("round " + std::to_string(round));
        if (HasFailure()) return;
    }
}
