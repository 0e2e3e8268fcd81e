// The copy that a reader leaves in XmNuserData of the text.

#include "output_support.h"

using namespace kite::testing;

namespace {

const char* parked()
{
    return static_cast<const char*>(resource<XtPointer>(outputText(), XmNuserData));
}

void park(void* pointer)
{
    XtVaSetValues(outputText(), XmNuserData, pointer, nullptr);
}

}  // namespace

GUI_TEST(ParkedCopy, IsLeftByEveryReader)
{
    char buffer[10];
    const std::function<void()> readers[] = {
        [] { guiOutputLineCount(); }, [&] { guiOutputLine(0, buffer, sizeof buffer); },
        [] { guiGetCurPos(0); }, [] { guiGetCurLine(0); }, [] { guiSelOutputLine(1, 0, 1); }};
    int number = 0;
    for (const auto& read : readers) {
        const std::string text = "text\nof " + std::to_string(++number);
        setOutput(text);
        read();
        ASSERT_TRUE(parked()) << number;
        EXPECT_EQ(parked(), text);
    }
    setOutput("");
    guiOutputLineCount();
    EXPECT_STREQ(parked(), "");
}

GUI_TEST(ParkedCopy, IsNotTakenForRefusedCalls)
{
    char buffer[10];
    EXPECT_EQ(guiOutputLine(-1, buffer, sizeof buffer), -1);
    EXPECT_EQ(guiSelOutputLine(0, 0, 0), 0);
    EXPECT_EQ(parked(), nullptr);
}

GUI_TEST(ParkedCopy, OverwritesWhatSomebodyElseLeftThere)
{
    static char mine[] = "mine";
    guiWriteText("a\nb");
    park(mine);
    EXPECT_EQ(guiOutputLineCount(), 2);
    EXPECT_STREQ(parked(), "a\nb");
    park(mine);
    guiWriteText("c");
    EXPECT_EQ(parked(), mine) << "nobody frees it when the text changes";
    EXPECT_EQ(line(1), "bc");
    EXPECT_STREQ(parked(), "a\nbc");
    park(nullptr);
    EXPECT_EQ(line(1), "bc");
    EXPECT_STREQ(parked(), "a\nbc");
    EXPECT_STREQ(mine, "mine");
}

// However the text changes: what is read next is what there is.
GUI_TEST(ParkedCopy, GoesWithEveryChange)
{
    Widget const text = outputText();
    const auto expectLine = [&](const std::string& expected) {
        EXPECT_EQ(parked(), nullptr) << expected;
        EXPECT_EQ(line(0), expected);
        EXPECT_EQ(parked(), expected);
    };
    char abc[] = "abc", x[] = "x", xyz[] = "xyz";
    XmTextSetString(text, abc);
    expectLine("abc");
    XmTextInsert(text, 1, x);
    expectLine("axbc");
    XmTextReplace(text, 0, 4, abc);
    expectLine("abc");
    XmTextReplace(text, 0, 3, xyz);  // of the same length
    expectLine("xyz");
    XtVaSetValues(text, XmNvalue, "abc", nullptr);
    expectLine("abc");
    XtVaSetValues(text, XmNvalueWcs, L"xyz", nullptr);
    expectLine("xyz");
    selectOutput(0, 1);
    XmTextRemove(text);
    expectLine("yz");
    XmTextInsertWcs(text, 0, const_cast<wchar_t*>(L"w"));
    expectLine("wyz");
    XmTextReplaceWcs(text, 0, 1, const_cast<wchar_t*>(L"v"));
    expectLine("vyz");
    selectOutput(0, 2);
    XmTextCut(text, XtLastTimestampProcessed(XtDisplay(text)));
    expectLine("z");
    XmTextSetInsertionPosition(text, 1);
    XmTextPaste(text);
    ASSERT_TRUE(pumpUntil([&] { return output() == "zvy"; }));
    expectLine("zvy");
    guiWriteText("!");
    expectLine("zvy!");
    guiWriteSel("!");
    expectLine("!zvy!");
    guiWriteHTML("&amp;");
    expectLine("!zvy!& ");
    guiRestart();
    EXPECT_EQ(parked(), nullptr);
    EXPECT_EQ(line(0), "[-1]");
}

GUI_TEST(ParkedCopy, GoesWithTheUsersChanges)
{
    guiWriteLine("abc");
    EXPECT_EQ(line(0), "abc");
    app.key(XK_Home, Control);
    app.type("x");
    EXPECT_EQ(line(0), "xabc");
    app.key(XK_Insert);  // from now on over what is there
    EXPECT_EQ(line(0), "xabc");
    app.type("y");
    EXPECT_EQ(line(0), output().substr(0, output().find('\n')));
    app.key(XK_BackSpace);
    EXPECT_EQ(line(0), output().substr(0, output().find('\n')));
    app.key(XK_Delete);
    EXPECT_EQ(line(0), output().substr(0, output().find('\n')));
    selectOutput(0, 2);
    const std::string before = output();
    robot.click(outputText(), MiddleButton, Point{100, 60});
    ASSERT_TRUE(pumpUntil([&] { return output() != before; }));
    EXPECT_EQ(line(0) + "\n" + line(1), output());
}

// To the toolkit that is no change of the value.
GUI_TEST(ParkedCopy, GoesWithTheSource)
{
    Widget const text = outputText();
    guiWriteText("abc");
    EXPECT_EQ(line(0), "abc");
    Widget const other = XtVaCreateWidget("other", xmTextWidgetClass, XtParent(text), XmNeditMode,
                                          XmMULTI_LINE_EDIT, XmNvalue, "xyz", nullptr);
    XmTextSetSource(text, XmTextGetSource(other), 0, 0);
    EXPECT_EQ(line(0), "xyz");
}

// A host may look at the text whenever it changes, also before the library has heard of it.
GUI_STARTUP_TEST(ParkedCopy, IsFreshInTheHostsOwnCallback)
{
    app.init();
    static std::string seen;
    XtAddCallback(
        outputText(), XmNvalueChangedCallback, [](Widget, XtPointer, XtPointer) { seen = line(0); },
        nullptr);
    app.run([] {
        guiWriteText("abc");
        EXPECT_EQ(seen, "abc");
        char xyz[] = "xyz";
        XmTextReplace(outputText(), 0, 3, xyz);
        EXPECT_EQ(seen, "xyz");
    });
}

GUI_TEST(ParkedCopy, StaysWhileNothingChanges)
{
    guiWriteText("a\nb");
    guiOutputLineCount();
    const char* const first = parked();
    EXPECT_EQ(line(0), "a");
    EXPECT_EQ(guiGetCurLine(0), 2);
    XmTextSetInsertionPosition(outputText(), 0);
    selectOutput(0, 2);
    EXPECT_EQ(line(1), "b");
    EXPECT_EQ(parked(), first);
}

GUI_STARTUP_TEST(ParkedCopy, OfOneFrameIsNotThatOfTheNext)
{
    app.run([] {
        guiWriteText("first");
        EXPECT_EQ(line(0), "first");
    });
    app.run([] {
        EXPECT_EQ(guiOutputLineCount(), 0);
        EXPECT_EQ(line(0), "[-1]");
        guiWriteText("other");
        EXPECT_EQ(line(0), "other");
    });
}
