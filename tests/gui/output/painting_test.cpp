// When what is written is painted: together with what comes soon after, and always at the end. What the
// screen shows is asked over a connection of its own, and nothing is processed meanwhile.

#include <sstream>

#include "painting_support.h"

using namespace kite::testing;

namespace {

using Clock = std::chrono::steady_clock;

void writeMany(int count)
{
    for (int i = 0; i < count; ++i) guiWriteLine("many lines");
}

}  // namespace

GUI_TEST(Painting, OfASingleLineIsDoneAtOnce)
{
    letQuietPass();
    const Shot before;
    guiWriteLine("at once");
    EXPECT_TRUE(waitUntil([&] { return before.differs(); })) << "while the handler runs on";
    letQuietPass();
    const Shot second;
    guiWriteText("and once more");
    EXPECT_TRUE(waitUntil([&] { return second.differs(); }));
}

// The machine may be busy just then; not always.
GUI_TEST(Painting, OfTheNextLineWaits)
{
    for (bool isFast = false; !isFast;) {
        guiClearOutput();
        letQuietPass();
        const Clock::time_point start = Clock::now();
        guiWriteLine("painted");
        guiWriteLine("waits");
        isFast = Clock::now() - start < milliseconds{15};
    }
    XSync(toolkit::display(), False);
    const Shot before;
    EXPECT_EQ(output(), "painted\nwaits\n") << "it is there";
    EXPECT_GT(before.picture().colours().size(), 1U) << "the first one is seen";
    guiUserBreak();
    XSync(toolkit::display(), False);
    EXPECT_TRUE(before.differs()) << "the second one was not";
}

GUI_TEST(Painting, GoesOnWhileAHandlerWritesForLong)
{
    letQuietPass();
    int changes = 0;
    for (int round = 0; round < 5; ++round) {
        const Shot before;
        const auto end = Clock::now() + milliseconds{40};
        while (Clock::now() < end) guiWriteLine(("round " + std::to_string(round)).c_str());
        XSync(toolkit::display(), False);
        if (before.differs()) ++changes;
    }
    EXPECT_EQ(changes, 5);
}

GUI_TEST(Painting, IsDoneBeforeWhateverShowsTheUserSomething)
{
    const std::pair<const char*, std::function<void()>> calls[] = {
        {"guiSetStatusLine", [] { guiSetStatusLine("status"); }},
        {"guiSetProgress", [] { guiSetProgress(50); }},
        {"guiUserBreak", [] { guiUserBreak(); }},
        {"guiBeep", [] { guiBeep(); }},
        {"guiRestart", [] { guiRestart(); }},
    };
    for (const auto& [name, call] : calls) {
        writeMany(3);
        call();
        XSync(toolkit::display(), False);
        expectPainted(name);
    }
}

GUI_TEST(Painting, IsDoneByReadersOnceItIsOverdue)
{
    writeMany(3);
    letQuietPass();
    guiOutputLineCount();
    expectPainted("guiOutputLineCount");
}

// A handler that takes X events only, and no time-outs.
GUI_TEST(Painting, OfWhatIsExposedMeanwhile)
{
    recorder.onEvent(GUI_EVENT_COMMAND, 5, [] {
        writeMany(3);
        Widget const text = outputText();
        XClearArea(XtDisplay(text), XtWindow(text), 0, 0, 0, 0, True);
        XSync(XtDisplay(text), False);
        XmUpdateDisplay(text);
        XSync(XtDisplay(text), False);
        EXPECT_GT(screen::grab(text).colours().size(), 1U);
        expectPainted("XmUpdateDisplay");
    });
    guiRunPlugin([](GuiHandler dispatch) { return dispatch(GUI_EVENT_COMMAND, 5, 0, 0); });
}

GUI_TEST(Painting, IsDoneWhenTheHandlerReturns)
{
    for (int round = 0; round < 5; ++round) {
        bool isDone = false;
        recorder.onEvent(GUI_EVENT_COMMAND, 5, [&] {
            writeMany(5 + round);
            isDone = true;
        });
        guiRunPlugin([](GuiHandler dispatch) { return dispatch(GUI_EVENT_COMMAND, 5, 0, 0); });
        ASSERT_TRUE(isDone);
        expectPainted("handler");
    }
}

GUI_STARTUP_TEST(Painting, IsDoneWhenTheHostCallbackReturns)
{
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.onEvent(GUI_EVENT_COMMAND, 5, [] { writeMany(5); });
        guiRunPlugin([](GuiHandler dispatch) { return dispatch(GUI_EVENT_COMMAND, 5, 0, 0); });
        expectPainted("host callback");
    });
}

GUI_TEST(Painting, IsDoneBeforeABoxWaits)
{
    app.whenShown("v_infobox", [&](Shown box) {
        expectPainted("under the box");
        writeMany(50);
        settle();
        ASSERT_TRUE(pumpUntil([] { return isPainted(); })) << "in its loop";
        box.click("OK");
    });
    writeMany(50);
    guiInfoBox("look");
}

// A callback of the host's own, no handler of ours: the loop paints it.
GUI_TEST(Painting, IsDoneAfterATimeOutOfTheHosts)
{
    static bool isDone;
    isDone = false;
    XtAppAddTimeOut(
        toolkit::context(), 0,
        [](XtPointer, XtIntervalId*) {
            writeMany(5);
            isDone = true;
        },
        nullptr);
    ASSERT_TRUE(pumpUntil([] { return isDone; }));
    EXPECT_TRUE(pumpUntil([] { return isPainted(); }));
}

// Nobody waits for anything here: the host's own loop is all there is.
GUI_STARTUP_TEST(Painting, IsDoneInALoopOfTheHosts)
{
    app.init();
    writeMany(5);
    const auto end = Clock::now() + milliseconds{2000};
    while (Clock::now() < end && !isPainted()) XtAppProcessEvent(toolkit::context(), XtIMAll);
    expectPainted("own loop");
}

// No event comes meanwhile.
GUI_STARTUP_TEST(Painting, IsDoneByTheTimeAlone)
{
    static bool isOver;
    isOver = false;
    app.init();
    settle();
    writeMany(5);
    XtAppAddTimeOut(
        toolkit::context(), 100, [](XtPointer, XtIntervalId*) { isOver = true; }, nullptr);
    while (!isOver) XtAppProcessEvent(toolkit::context(), XtIMTimer);
    expectPainted("the time-out");
}

GUI_STARTUP_TEST(Painting, IsDoneOnTheFirstInput)
{
    app.init();
    Widget const text = outputText();
    writeMany(3);
    robot.click(text, LeftButton, Point{40, 8});
    expectPainted("click");
    XmTextPosition const clicked = insertionPoint();
    EXPECT_GT(clicked, 0);
    EXPECT_LT(clicked, 11) << "where the user has clicked";
    writeMany(3);
    app.type("x");
    EXPECT_EQ(output().substr(output().size() - 2), "\nx");
    expectPainted("key");
    writeMany(100);
    robot.wheel(text, -20);
    settle();
    EXPECT_LT(XmTextGetTopCharacter(text), XmTextGetLastPosition(text) - 600);
    expectPainted("wheel");
}

GUI_TEST(Painting, OfEverythingThatIsWritten)
{
    const std::function<void()> writes[] = {[] { guiWriteText("text "); },
                                            [] { guiWriteLine("line"); },
                                            [] { guiWriteSel("beginning "); },
                                            [] { guiWriteHTML("<p>page<br>b<body wide=on>"); },
                                            [] { guiWriteHTML("<body>plain"); },
                                            [] { guiSelOutputLine(1, 2, 5); },
                                            [] { guiWriteSel("middle"); },
                                            [] { guiSelOutputLine(2, 0, 3); },
                                            [] { guiClearOutput(); },
                                            [] { guiClearOutput(); },
                                            [] { guiWriteLine("a new beginning"); }};
    int number = 0;
    for (const auto& write : writes) {
        writeMany(1);
        write();
        guiUserBreak();
        settle();
        expectPainted(std::to_string(++number));
    }
}

// While painting waits, nobody can tell from what the text answers.
GUI_TEST(Painting, DoesNotShowInWhatIsRead)
{
    Widget const text = outputText();
    const auto answers = [&] {
        Position x = -1, y = -1;
        const Boolean isVisible = XmTextPosToXY(text, XmTextGetLastPosition(text), &x, &y);
        std::ostringstream all;
        all << XmTextGetTopCharacter(text) << ' ' << int{isVisible} << ' ' << x << ' ' << y << ' '
            << XmTextXYToPos(text, 30, 30) << ' ' << insertionPoint() << ' ' << outputSelection()
            << ' ' << resource<XmTextPosition>(text, XmNtopCharacter) << ' '
            << resource<XmTextPosition>(text, XmNcursorPosition) << ' ' << output().size();
        return all.str();
    };
    const std::function<void()> writes[] = {
        [] { writeMany(50); },
        [] { guiWriteText(std::string(300, 'x').c_str()); },
        [] { guiWriteSel("first\n"); },
        [] { guiSelOutputLine(3, 1, 2); },
        [] { guiWriteHTML("a<br>b<li>c"); },
        [] { guiClearOutput(); },
    };
    for (const auto& write : writes) {
        writeMany(1);
        write();
        const std::string held = answers();
        guiUserBreak();
        EXPECT_EQ(held, answers());
    }
}
