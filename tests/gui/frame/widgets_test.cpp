// The widgets of the frame: names, classes and places in the tree, which X resources can address.

#include <Xm/Form.h>
#include <Xm/LabelG.h>
#include <Xm/MainW.h>
#include <Xm/RowColumn.h>
#include <Xm/Scale.h>
#include <Xm/ScrolledW.h>
#include <Xm/Text.h>

#include "gui_test.h"

using namespace kite::testing;

namespace {

struct Node {
    const char* name;
    WidgetClass widgetClass;
    const char* parent;
};

}  // namespace

GUI_STARTUP_TEST(FrameWidgets, HaveTheirNamesClassesAndParents)
{
    app.init();
    const Node nodes[] = {
        {"v_mainwnd", xmMainWindowWidgetClass, "Kite"},
        {"v_menubar", xmRowColumnWidgetClass, "v_mainwnd"},
        {"v_toolbar", xmFormWidgetClass, "v_mainwnd"},
        {"v_scroll", xmScrolledWindowWidgetClass, "v_mainwnd"},
        {"v_text", xmTextWidgetClass, "v_scroll"},
        {"v_statusbar", xmFormWidgetClass, "v_mainwnd"},
        {"v_sline", xmLabelGadgetClass, "v_statusbar"},
        {"v_gauge", xmScaleWidgetClass, "v_statusbar"},
    };
    for (const Node& node : nodes) {
        SCOPED_TRACE(node.name);
        ASSERT_EQ(findWidgets(node.name).size(), 1U);
        Widget const widget = findWidget(node.name);
        EXPECT_EQ(XtClass(widget), node.widgetClass);
        EXPECT_STREQ(XtName(XtParent(widget)), node.parent);
    }
}

GUI_STARTUP_TEST(FrameWidgets, MenuBarIsAMenuBar)
{
    app.init();
    EXPECT_EQ(resource<unsigned char>(findWidget("v_menubar"), XmNrowColumnType), XmMENU_BAR);
}

GUI_STARTUP_TEST(FrameWidgets, ToolbarIsThirtySevenPixelsHigh)
{
    app.init();
    EXPECT_EQ(resource<Dimension>(findWidget("v_toolbar"), XmNheight), 37);
}

GUI_TEST(FrameWidgets, EmptyToolbarIsGoneWhenTheFrameIsShown)
{
    EXPECT_EQ(findWidget("v_toolbar"), nullptr);
}

GUI_TEST(FrameWidgets, MainWindowHasThemAsItsAreas)
{
    Widget const frame = findWidget("v_mainwnd");
    EXPECT_EQ(resource<Widget>(frame, XmNmenuBar), findWidget("v_menubar"));
    EXPECT_EQ(resource<Widget>(frame, XmNworkWindow), findWidget("v_scroll"));
    EXPECT_EQ(resource<Widget>(frame, XmNmessageWindow), findWidget("v_statusbar"));
    EXPECT_TRUE(XtIsManaged(findWidget("v_menubar")));
}

GUI_TEST(FrameWidgets, ScrollerLeavesScrollingToTheText)
{
    EXPECT_EQ(resource<unsigned char>(findWidget("v_scroll"), XmNscrollingPolicy),
              XmAPPLICATION_DEFINED);
}

GUI_TEST(FrameWidgets, OutputTextIsAnEditorOfManyLines)
{
    Widget const text = findWidget("v_text");
    EXPECT_EQ(resource<int>(text, XmNeditMode), XmMULTI_LINE_EDIT);
    EXPECT_TRUE(resource<Boolean>(text, XmNeditable));
    EXPECT_EQ(resource<int>(text, XmNblinkRate), 0);
    app.click("v_text");
    app.type("two\nlines");
    EXPECT_EQ(textOf(text), "two\nlines");
}

GUI_TEST(FrameWidgets, OutputTextIsBlackOnWhite)
{
    Widget const text = findWidget("v_text");
    EXPECT_EQ(resource<Pixel>(text, XmNforeground), BlackPixelOfScreen(XtScreen(text)));
    EXPECT_EQ(resource<Pixel>(text, XmNbackground), WhitePixelOfScreen(XtScreen(text)));
    ASSERT_TRUE(screen::waitUntilPainted(text));
    EXPECT_EQ(screen::colourAt(rectOf(text).centre()), screen::colourNamed("white"));
}

GUI_TEST(FrameWidgets, InsertionCursorIsSeenOnlyWithTheFocus)
{
    Widget const text = findWidget("v_text");
    app.click("v_text");
    EXPECT_TRUE(resource<Boolean>(text, XmNcursorPositionVisible));
    app.whenShown("v_infobox", [&](Shown box) {
        EXPECT_TRUE(wm::waitForFocus(box.widget()));
        EXPECT_TRUE(pumpUntil([&] { return !resource<Boolean>(text, XmNcursorPositionVisible); }));
        box.key(XK_Return);
    });
    guiInfoBox("The focus is here.");
    EXPECT_TRUE(pumpUntil([&] { return resource<Boolean>(text, XmNcursorPositionVisible) != 0; }));
}

GUI_TEST(FrameWidgets, StatusLineBeginsBlankAtTheLeft)
{
    Widget const line = findWidget("v_sline");
    EXPECT_EQ(labelOf(line), " ");
    EXPECT_EQ(resource<unsigned char>(line, XmNalignment), XmALIGNMENT_BEGINNING);
    for (const char* side : {XmNleftAttachment, XmNtopAttachment, XmNbottomAttachment})
        EXPECT_EQ(resource<unsigned char>(line, side), XmATTACH_FORM) << side;
    EXPECT_EQ(resource<unsigned char>(line, XmNrightAttachment), XmATTACH_POSITION);
    EXPECT_EQ(resource<int>(line, XmNrightPosition), 67);
    EXPECT_EQ(resource<int>(findWidget("v_statusbar"), XmNfractionBase), 100);
}

GUI_TEST(FrameWidgets, GaugeIsAHorizontalScaleOfPercent)
{
    Widget const gauge = findWidget("v_gauge");
    EXPECT_EQ(resource<unsigned char>(gauge, XmNorientation), XmHORIZONTAL);
    EXPECT_EQ(resource<int>(gauge, XmNvalue), 0);
    EXPECT_EQ(resource<int>(gauge, XmNminimum), 0);
    EXPECT_EQ(resource<int>(gauge, XmNmaximum), 100);
}

GUI_TEST(FrameWidgets, GaugeStandsBehindTheStatusLine)
{
    Widget const gauge = findWidget("v_gauge");
    EXPECT_EQ(resource<unsigned char>(gauge, XmNleftAttachment), XmATTACH_WIDGET);
    EXPECT_EQ(resource<Widget>(gauge, XmNleftWidget), findWidget("v_sline"));
    EXPECT_EQ(resource<unsigned char>(gauge, XmNrightAttachment), XmATTACH_FORM);
    const Rect bar = rectOf(findWidget("v_statusbar"));
    const Rect line = rectOf(findWidget("v_sline"));
    const Rect rect = rectOf(gauge);
    EXPECT_EQ(bar.right() - rect.right(), 20);
    EXPECT_EQ(rect.y - bar.y, 4);
    EXPECT_EQ(bar.bottom() - rect.bottom(), 4);
    EXPECT_GE(rect.x, line.right());
    EXPECT_LT(rect.x - line.right(), 10);
}

GUI_TEST(FrameWidgets, StatusLineEndsAtTwoThirdsOfTheBar)
{
    const Rect bar = rectOf(findWidget("v_statusbar"));
    const Rect line = rectOf(findWidget("v_sline"));
    EXPECT_NEAR(line.right() - bar.x, bar.width * 67 / 100, 2);
}

// From top to bottom, without gaps that a user would see.
GUI_TEST(FrameWidgets, OutputAreaFillsTheFrameAboveTheStatusBar)
{
    const Rect frame = rectOf(findWidget("v_mainwnd"));
    const Rect scroller = rectOf(findWidget("v_scroll"));
    const Rect bar = rectOf(findWidget("v_statusbar"));
    EXPECT_NEAR(scroller.width, frame.width, 10);
    EXPECT_LE(scroller.bottom(), bar.y);
    EXPECT_NEAR(bar.y, scroller.bottom(), 10);
    EXPECT_NEAR(bar.bottom(), frame.bottom(), 10);
    EXPECT_GT(scroller.height, frame.height / 2);
}
