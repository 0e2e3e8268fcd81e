// guiSelOutputLine.

#include <X11/Xatom.h>

#include <climits>

#include "connection.h"
#include "output_support.h"

using namespace kite::testing;

GUI_TEST(SelOutputLine, SelectsAStretch)
{
    setOutput("ab\ncd");
    struct {
        int line, column, count;
        Selected selected;
    } const rows[] = {
        {2, 1, 1, {4, 5}},   {1, 0, 2, {0, 2}},
        {2, 0, 2, {3, 5}},   {1, 1, 3, {1, 4}},      // into the next line
        {1, 3, 2, {3, 5}},                           // the column too
        {2, -3, 1, {0, 1}},                          // and backwards
        {1, 0, -1, {0, 5}},  {1, 0, 65535, {0, 5}},  // everything
        {2, -3, -1, {0, 5}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(guiSelOutputLine(row.line, row.column, row.count), 1);
        EXPECT_EQ(outputSelection(), row.selected) << row.line << " " << row.column;
        EXPECT_EQ(insertionPoint(), row.selected.right);
    }
    EXPECT_EQ(output(), "ab\ncd");
}

GUI_TEST(SelOutputLine, NeedsALine)
{
    setOutput("ab\ncd");
    selectOutput(1, 2);
    for (const int line : {0, -1, INT_MIN, 4, 5, INT_MAX}) {
        EXPECT_EQ(guiSelOutputLine(line, 0, 1), 0) << line;
        EXPECT_EQ(outputSelection(), (Selected{1, 2})) << line;
        EXPECT_EQ(insertionPoint(), 2) << line;
    }
    setOutput("");
    EXPECT_EQ(guiSelOutputLine(1, 0, -1), 0) << "an empty area";
    EXPECT_EQ(guiSelOutputLine(2, 0, 0), 0);
}

// One more than there are: the place behind them.
GUI_TEST(SelOutputLine, TakesTheLineBehindTheLast)
{
    setOutput("ab\ncd");
    EXPECT_EQ(guiSelOutputLine(3, -2, 2), 1);
    EXPECT_EQ(outputSelection(), (Selected{3, 5}));
    setOutput("ab\ncd\n");
    EXPECT_EQ(guiSelOutputLine(3, -3, 2), 1);
    EXPECT_EQ(outputSelection(), (Selected{3, 5}));
    EXPECT_EQ(guiSelOutputLine(4, 0, 0), 0);
}

GUI_TEST(SelOutputLine, OfNothingPutsTheInsertionPoint)
{
    setOutput("ab\ncd");
    EXPECT_EQ(guiSelOutputLine(2, 1, 0), 1);
    EXPECT_EQ(insertionPoint(), 4);
    const Selected selected = outputSelection();
    EXPECT_TRUE(selected == kNothing || selected.left == selected.right) << selected;
}

GUI_TEST(SelOutputLine, PositionsThatTheTextLacksSelectNothingNew)
{
    setOutput("ab\ncd");
    struct {
        int line, column, count;
        XmTextPosition insertion;
    } const rows[] = {
        {1, -1, 2, 1},  {1, -10, 2, 0}, {1, 0, 6, 5},      {2, 4, 1, 5},
        {2, 1, 100, 5}, {1, 0, -2, 0},  {1, 3, -65537, 2},
    };
    for (const auto& row : rows) {
        selectOutput(1, 2);
        EXPECT_EQ(guiSelOutputLine(row.line, row.column, row.count), 1);
        const Selected selected = outputSelection();
        EXPECT_TRUE(selected == (Selected{1, 2}) || selected == kNothing) << selected;
        EXPECT_EQ(insertionPoint(), row.insertion) << row.column << " " << row.count;
    }
    EXPECT_EQ(output(), "ab\ncd");
}

GUI_TEST(SelOutputLine, AnEndBeforeTheStartSelectsNothing)
{
    setOutput("ab\ncd");
    selectOutput(1, 2);
    EXPECT_EQ(guiSelOutputLine(2, 1, -2), 1);
    EXPECT_EQ(outputSelection(), kNothing);
    EXPECT_EQ(insertionPoint(), 2);
}

GUI_TEST(SelOutputLine, PositionsWrapAtSixteenBits)
{
    setOutput(std::string(70000, 'x') + "\nlast");
    struct {
        int line, column, count;
        Selected selected;
    } const rows[] = {
        {1, 32766, 1, {32766, 32767}},  {1, 65536, 10, {0, 10}},
        {1, 65537, 10, {1, 11}},        {2, -1, 5, {70000 - 65536, 70005 - 65536}},
        {1, 100, 65546, {100, 110}},    {1, 0, INT_MAX, {0, 70005}},  // -1 in 16 bits
        {1, 65536, 131071, {0, 70005}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(guiSelOutputLine(row.line, row.column, row.count), 1);
        EXPECT_EQ(outputSelection(), row.selected) << row.column << " " << row.count;
        EXPECT_EQ(insertionPoint(), row.selected.right);
    }
    selectOutput(1, 2);
    EXPECT_EQ(guiSelOutputLine(1, 32766, 2), 1);  // ends at -32768
    EXPECT_EQ(insertionPoint(), 0);
    for (const int column : {INT_MIN, INT_MAX, 32767, 32768, -32768})
        for (const int count : {INT_MIN, INT_MAX, -1, 32767, 32768})
            EXPECT_EQ(guiSelOutputLine(1, column, count), 1);
}

GUI_TEST(SelOutputLine, ScrollsThere)
{
    std::string lines;
    for (int i = 1; i <= 300; ++i) lines += "line " + std::to_string(i) + "\n";
    setOutput(lines);
    Widget const text = outputText();
    const auto isVisible = [&](XmTextPosition position) {
        Position x, y;
        return XmTextPosToXY(text, position, &x, &y) && y < resource<Dimension>(text, XmNheight);
    };
    EXPECT_EQ(guiSelOutputLine(200, 0, 8), 1);
    EXPECT_TRUE(isVisible(insertionPoint()));
    EXPECT_FALSE(isVisible(0));
    EXPECT_EQ(guiSelOutputLine(1, 0, 6), 1);
    EXPECT_TRUE(isVisible(0));
    EXPECT_EQ(guiSelOutputLine(1, 0, -1), 1);
    EXPECT_TRUE(isVisible(XmTextGetLastPosition(text)));
}

GUI_TEST(SelOutputLine, IsTheSelectionForOtherClientsToo)
{
    setOutput("ab\ncd");
    guiSelOutputLine(2, 0, 2);
    const Process client{{"xclip", "-selection", "primary", "-o"}};
    auto& running = const_cast<Process&>(client);
    ASSERT_TRUE(running.wait());
    EXPECT_EQ(client.output(), "cd");
}

namespace {

// A window of another program.
Window otherWindow()
{
    static const Window window = [] {
        const Window created =
            XCreateSimpleWindow(connection(), DefaultRootWindow(connection()), 0, 0, 1, 1, 0, 0, 0);
        XSelectInput(connection(), created, PropertyChangeMask);
        return created;
    }();
    return window;
}

Time serverTime()
{
    XChangeProperty(connection(), otherWindow(), XA_WM_NAME, XA_STRING, 8, PropModeAppend, nullptr,
                    0);
    XEvent event;
    XWindowEvent(connection(), otherWindow(), PropertyChangeMask, &event);
    return event.xproperty.time;
}

// To Xt two selections of one millisecond are one.
void selectElsewhere()
{
    const Time before = serverTime();
    ASSERT_TRUE(waitUntil([=] { return serverTime() > before; }));
    XSetSelectionOwner(connection(), XA_PRIMARY, otherWindow(), CurrentTime);
    const Time selected = serverTime();
    ASSERT_TRUE(waitUntil([=] { return serverTime() > selected; }));
}

}  // namespace

// The user has just marked a word in another program, and we have not heard of it.
GUI_TEST(SelOutputLine, TakesTheSelectionFromOtherClients)
{
    setOutput("ab\ncd");
    selectElsewhere();
    EXPECT_EQ(guiSelOutputLine(2, 0, 2), 1);
    EXPECT_EQ(outputSelection(), (Selected{3, 5}));
    selectElsewhere();
    EXPECT_EQ(guiSelOutputLine(1, 0, 2), 1);
    EXPECT_EQ(outputSelection(), (Selected{0, 2}));
    settle();
    EXPECT_EQ(outputSelection(), (Selected{0, 2}));
    EXPECT_EQ(XGetSelectionOwner(connection(), XA_PRIMARY), XtWindow(outputText()));
}

GUI_TEST(SelOutputLine, IsClearedByTheNextLine)
{
    setOutput("ab\ncd\n");
    guiSelOutputLine(2, 0, 2);
    guiWriteLine("next");
    EXPECT_EQ(outputSelection(), kNothing);
    EXPECT_EQ(guiGetCurPos(GUI_SELECTION_END), 0);
}
