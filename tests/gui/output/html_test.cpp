// Markup in the Output area and in other texts. What becomes of each piece of it is tested without a
// display.

#include <Xm/Label.h>
#include <Xm/TextF.h>

#include "output_support.h"

using namespace kite::testing;

namespace {

Boolean setting(Widget text, const char* name)
{
    return resource<Boolean>(text, name);
}

}  // namespace

GUI_TEST(WriteHTML, AddsTextToTheOutput)
{
    guiWriteText("old\n");
    guiWriteHTML("<b>x</b>");
    EXPECT_EQ(output(), "old\nx ");
    guiWriteHTML("<p>one");
    EXPECT_EQ(output(), "old\nx \none \n");
    guiWriteHTML(nullptr);
    EXPECT_EQ(output(), "old\nx \none \n");
    guiWriteHTML("");
    EXPECT_EQ(output(), "old\nx \none \n ");
}

GUI_TEST(WriteHTML, ListItemsEndUpLast)
{
    guiWriteHTML("<li>a<li>b");
    EXPECT_EQ(output(), "\na\nb - - ");
}

GUI_TEST(WriteHTML, RemembersPreformattedText)
{
    guiWriteHTML("<pre>a");
    guiClearOutput();
    guiWriteHTML("b");
    EXPECT_EQ(output(), "b\n ");
    guiWriteHTML("</pre>");
    EXPECT_EQ(output(), "b\n  ");
}

GUI_TEST(WriteHTML, PutsTheInsertionPointBehindText)
{
    guiWriteHTML("ab<i>");
    EXPECT_EQ(output(), "ab ");
    EXPECT_GE(insertionPoint(), 2);
    setOutput("old");
    XmTextSetInsertionPosition(outputText(), 0);
    guiWriteHTML("ab<i>c");
    EXPECT_EQ(output(), "oldabc ");
    EXPECT_GE(insertionPoint(), 5);
}

GUI_TEST(WriteHTML, KeepsTheSelection)
{
    setOutput("old");
    selectOutput(0, 2);
    guiWriteHTML("<b>new");
    EXPECT_EQ(output(), "oldnew ");
    EXPECT_EQ(outputSelection(), (Selected{0, 2}));
}

GUI_TEST(WriteHTML, BodySetsTheArea)
{
    Widget const text = outputText();
    guiWriteHTML("<body readonly>a");
    EXPECT_FALSE(XmTextGetEditable(text));
    EXPECT_EQ(output(), "a ") << "written although it is read-only";
    guiWriteHTML("b");
    EXPECT_FALSE(XmTextGetEditable(text)) << "until it is changed";
    guiWriteHTML("<body>");
    EXPECT_TRUE(XmTextGetEditable(text));

    guiWriteHTML("<body wide=on>");
    EXPECT_TRUE(setting(text, XmNwordWrap));
    EXPECT_FALSE(setting(text, XmNscrollHorizontal));
    guiWriteHTML("<body>");
    EXPECT_FALSE(setting(text, XmNwordWrap));
    EXPECT_TRUE(setting(text, XmNscrollHorizontal));
    guiWriteHTML("<body wide=no>");
    EXPECT_FALSE(setting(text, XmNwordWrap));
    EXPECT_FALSE(setting(text, XmNscrollHorizontal));
}

// As the user sees it: a long line reaches into more lines on the screen, and back.
GUI_TEST(WriteHTML, BodyWrapsLongLines)
{
    Widget const text = outputText();
    guiWriteLine(std::string(500, 'x').c_str());
    for (int i = 0; i < 30; ++i) guiWriteText("some words ");
    const auto rows = [&] {
        settle();
        Position x = 0, first = 0, last = 0;
        XmTextPosToXY(text, 501, &x, &first);
        EXPECT_TRUE(XmTextPosToXY(text, XmTextGetLastPosition(text), &x, &last));
        return (last - first) / 10;
    };
    EXPECT_EQ(rows(), 0);
    const auto height = resource<Dimension>(text, XmNheight);
    guiWriteHTML("<body wide=on>");
    EXPECT_GT(rows(), 3);
    EXPECT_GT(resource<Dimension>(text, XmNheight), height) << "the scroll bar is gone";
    guiWriteLine("and more");
    EXPECT_GT(rows(), 4);
    guiWriteHTML("<body>");
    EXPECT_LE(rows(), 2);
    EXPECT_EQ(resource<Dimension>(text, XmNheight), height);
}

GUI_TEST(HTML2Rich, WritesToOtherTexts)
{
    Widget const text = XtVaCreateWidget("other", xmTextWidgetClass, app.find("v_mainwnd"),
                                         XmNeditMode, XmMULTI_LINE_EDIT, XmNvalue, "old", nullptr);
    Widget const field = XtVaCreateWidget("field", xmTextFieldWidgetClass, app.find("v_mainwnd"),
                                          XmNvalue, "old", nullptr);
    for (Widget const target : {text, field}) {
        guiHTML2Rich(target, "a&amp;b");
        EXPECT_EQ(textOf(target), "olda&b ");
        guiHTML2Rich(target, nullptr);
        EXPECT_EQ(textOf(target), "olda&b ");
        guiHTML2Rich(target, "");
        EXPECT_EQ(textOf(target), "olda&b  ");
    }
    guiHTML2Rich(text, "<body readonly>");
    EXPECT_FALSE(XmTextGetEditable(text));
    EXPECT_TRUE(XmTextGetEditable(outputText()));
    EXPECT_EQ(output(), "");
}

GUI_TEST(HTML2Rich, LeavesOtherWidgetsAlone)
{
    guiHTML2Rich(nullptr, "a");
    guiHTML2Rich(app.find("v_sline"), "a");
    guiHTML2Rich(app.find("v_mainwnd"), "a<body>");
    EXPECT_EQ(labelOf(app.find("v_sline")), " ");
}
