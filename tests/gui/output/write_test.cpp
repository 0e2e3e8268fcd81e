// What the host writes to the Output area, and its log.

#include "output_support.h"

using namespace kite::testing;

GUI_TEST(Write, TextGoesToTheEnd)
{
    guiWriteText("one");
    guiWriteText(" two\nthree");
    EXPECT_EQ(output(), "one two\nthree");
    EXPECT_EQ(insertionPoint(), 13);

    XmTextSetInsertionPosition(outputText(), 2);
    guiWriteText("!");
    EXPECT_EQ(output(), "one two\nthree!") << "wherever the insertion point is";
    EXPECT_EQ(insertionPoint(), 14);

    guiWriteText("");
    EXPECT_EQ(output(), "one two\nthree!");
    XmTextSetInsertionPosition(outputText(), 2);
    guiWriteText("");
    EXPECT_EQ(insertionPoint(), 14) << "goes to the end for an empty text too";
    guiWriteText(nullptr);
    EXPECT_EQ(output(), "one two\nthree!");
}

GUI_TEST(Write, LineGetsItsEnd)
{
    guiWriteLine("one");
    EXPECT_EQ(output(), "one\n");
    EXPECT_EQ(insertionPoint(), 4);
    guiWriteLine("");
    guiWriteLine("two\nthree");
    EXPECT_EQ(output(), "one\n\ntwo\nthree\n");
    EXPECT_EQ(insertionPoint(), 15);
    guiWriteText("open");
    guiWriteLine("end");
    EXPECT_EQ(output(), "one\n\ntwo\nthree\nopenend\n");
    guiWriteLine(nullptr);
    EXPECT_EQ(output(), "one\n\ntwo\nthree\nopenend\n");
}

GUI_TEST(Write, ClearsTheSelection)
{
    const auto selectTwo = [] {
        selectOutput(1, 3);
        ASSERT_EQ(outputSelection(), (Selected{1, 3}));
    };
    setOutput("abcdef");
    selectTwo();
    guiWriteText("g");
    EXPECT_EQ(outputSelection(), kNothing);
    selectTwo();
    guiWriteLine("h");
    EXPECT_EQ(outputSelection(), kNothing);
    EXPECT_EQ(output(), "abcdefgh\n");
    selectTwo();
    guiWriteText("");
    EXPECT_EQ(outputSelection(), kNothing) << "also for an empty text";
    selectTwo();
    guiWriteText(nullptr);
    guiWriteLine(nullptr);
    EXPECT_EQ(outputSelection(), (Selected{1, 3})) << "null does nothing at all";
}

GUI_TEST(Write, TakesAllBytes)
{
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) bytes += static_cast<char>(byte);
    guiWriteText(bytes.c_str());
    EXPECT_EQ(output(), bytes);
    guiWriteLine(bytes.c_str());
    EXPECT_EQ(output(), bytes + bytes + "\n");
    EXPECT_EQ(insertionPoint(), 511);
}

GUI_TEST(Write, ToAReadOnlyArea)
{
    XmTextSetEditable(outputText(), False);
    guiWriteLine("a");
    guiWriteSel("b");
    guiWriteHTML("<b>c</b>");
    EXPECT_EQ(output(), "ba\nc ");
    guiClearOutput();
    EXPECT_EQ(output(), "");
    EXPECT_FALSE(XmTextGetEditable(outputText()));
}

// Typing is limited then, writing is not.
GUI_TEST(Write, BeyondTheUsersLimit)
{
    XmTextSetMaxLength(outputText(), 3);
    guiWriteLine("abcdef");
    EXPECT_EQ(output(), "abcdef\n");
    EXPECT_EQ(XmTextGetMaxLength(outputText()), 3);
}

GUI_TEST(WriteSel, ReplacesTheSelection)
{
    setOutput("abcdef");
    selectOutput(1, 3);
    guiWriteSel("xyz");
    EXPECT_EQ(output(), "axyzdef");
    EXPECT_EQ(insertionPoint(), 4);

    selectOutput(0, 7);
    guiWriteSel("new");
    EXPECT_EQ(output(), "new");
    EXPECT_EQ(insertionPoint(), 3);

    selectOutput(1, 2);
    guiWriteSel("");
    EXPECT_EQ(output(), "nw") << "an empty text deletes it";
    EXPECT_EQ(insertionPoint(), 1);

    selectOutput(0, 1);
    guiWriteSel(nullptr);
    EXPECT_EQ(output(), "nw");
    EXPECT_EQ(outputSelection(), (Selected{0, 1}));
}

GUI_TEST(WriteSel, WithNothingSelectedWritesToTheBeginning)
{
    guiWriteSel("first");
    EXPECT_EQ(output(), "first");
    EXPECT_EQ(insertionPoint(), 5);
    XmTextSetInsertionPosition(outputText(), 3);
    guiWriteSel("x");
    EXPECT_EQ(output(), "xfirst");
    EXPECT_EQ(insertionPoint(), 1);
    guiWriteSel("");
    EXPECT_EQ(insertionPoint(), 0);
    EXPECT_EQ(output(), "xfirst");
}

GUI_TEST(WriteSel, ReplacesWhatTheUserSelected)
{
    setOutput("word more");
    robot.doubleClick(outputText(), LeftButton, Point{12, 12});
    guiWriteSel("x");
    EXPECT_EQ(output(), "x more");
}

GUI_TEST(ClearOutput, DeletesEverythingOrTheSelection)
{
    setOutput("one\ntwo");
    guiClearOutput();
    EXPECT_EQ(output(), "");
    EXPECT_EQ(insertionPoint(), 0);
    guiClearOutput();
    EXPECT_EQ(output(), "");

    setOutput("one\ntwo");
    selectOutput(1, 5);
    guiClearOutput();
    EXPECT_EQ(output(), "owo");
    EXPECT_EQ(guiOutputLineCount(), 1);
    guiClearOutput();
    EXPECT_EQ(output(), "") << "the selection is gone with its text";

    setOutput("one");
    selectOutput(0, 3);
    guiClearOutput();
    EXPECT_EQ(output(), "") << "all of it selected";

    setOutput("one");
    selectOutput(2, 2);
    guiClearOutput();
    EXPECT_EQ(output(), "") << "an empty selection is none";
}

// What the log is given, in the order of the calls.
GUI_STARTUP_TEST(WriteLog, HasTextsAndLinesAndMarkup)
{
    host.profile().setInt("logfm", 1);
    app.run([] {
        std::string before = contentsOf("output.log");
        const auto added = [&] {
            const std::string now = contentsOf("output.log");
            EXPECT_EQ(now.substr(0, before.size()), before);
            const std::string rest = now.substr(before.size());
            before = now;
            return rest;
        };
        guiWriteText("no end");
        EXPECT_EQ(added(), "no end");
        guiWriteText("two\nlines\n");
        EXPECT_EQ(added(), "two\nlines\n");
        guiWriteLine("line");
        EXPECT_EQ(added(), "line\n");
        guiWriteLine("");
        EXPECT_EQ(added(), "\n");
        guiWriteHTML("<b>x</b>&amp;");
        EXPECT_EQ(added(), "<b>x</b>&amp;");
        guiWriteText("%s%n");
        guiWriteLine("%d\x80\xFF");
        EXPECT_EQ(added(), "%s%n%d\x80\xFF\n");

        guiWriteText(nullptr);
        guiWriteLine(nullptr);
        guiWriteHTML(nullptr);
        guiWriteText("");
        guiWriteHTML("");
        guiWriteSel("selection");
        guiHTML2Rich(outputText(), "<b>y</b>");
        guiClearOutput();
        EXPECT_EQ(added(), "") << "none of these";
    });
    EXPECT_EQ(contentsOf("output.log").find("ended"), std::string::npos);
}

GUI_STARTUP_TEST(WriteLog, KeepsItsEmptyLastLine)
{
    host.profile().setInt("logfm", 1);
    app.run([] { guiWriteLine(""); });
    const std::string log = contentsOf("output.log");
    EXPECT_NE(log.find("\n\n\n>>>LogStopped"), std::string::npos) << log;
    EXPECT_EQ(log.find("\n\n\n\n"), std::string::npos) << log;
}

GUI_STARTUP_TEST(WriteLog, OfTextWithoutAnEndGoesOnInTheStopLine)
{
    host.profile().setInt("logfm", 1);
    app.run([] { guiWriteText("open"); });
    EXPECT_NE(contentsOf("output.log").find("open>>>LogStopped"), std::string::npos);
}
