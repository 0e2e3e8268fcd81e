// The note at the pointer: how it looks, and where it stands.

#include "box_kinds.h"

#include <Xm/RowColumn.h>

using namespace kite::testing;

namespace {

const Point kRestingPlace{600, 500};

// The nearest colour that the screen has.
screen::Colour paleYellow()
{
    Widget const main = findWidget("v_mainwnd");
    Display* const display = XtDisplay(main);
    XColor colour{};
    colour.red = colour.green = 0xFFFF;
    colour.blue = 0xFFDD;
    EXPECT_TRUE(XAllocColor(display, DefaultColormapOfScreen(XtScreen(main)), &colour));
    return screen::colourOf(main, colour.pixel);
}

Widget labelIn(Shown note)
{
    return note.child("v_dlglabel");
}

// Shows a note under the resting pointer, looks at it, and takes it down with Escape.
int whileNoting(const char* text, const std::function<void(Shown)>& look,
                Point place = kRestingPlace)
{
    Robot::instance().moveTo(place);
    settle();
    Script::instance().whenShown("p_menu", [&](Shown note) {
        look(note);
        Robot::instance().keyHandled(XK_Escape);
    });
    return guiTipBox(text);
}

}  // namespace

GUI_TEST(TipLook, IsAPopupMenuOfTheMainWindow)
{
    whileNoting("A note", [](Shown note) {
        EXPECT_EQ(resource<unsigned char>(note.widget(), XmNrowColumnType), XmMENU_POPUP);
        EXPECT_EQ(XtParent(note.shell()), findWidget("v_mainwnd"));
    });
}

GUI_TEST(TipLook, MainWindowIsItsParentAlsoInsideABox)
{
    whileShown(boxKind("guiInfoBox"), [](Shown) {
        whileNoting("A note",
                    [](Shown note) { EXPECT_EQ(XtParent(note.shell()), findWidget("v_mainwnd")); });
    });
}

GUI_TEST(TipLook, ShowsItsText)
{
    whileNoting("Press here",
                [](Shown note) { EXPECT_EQ(note.labelOf("v_dlglabel"), "Press here"); });
    whileNoting("Two\nlines",
                [](Shown note) { EXPECT_EQ(note.labelOf("v_dlglabel"), "Two\nlines"); });
    whileNoting("", [](Shown note) { EXPECT_EQ(note.labelOf("v_dlglabel"), ""); });
    whileNoting("\xE9\xDF\x80",
                [](Shown note) { EXPECT_EQ(note.labelOf("v_dlglabel"), "\xE9\xDF\x80"); });
}

GUI_TEST(TipLook, NullIsAnEmptyText)
{
    whileNoting(nullptr, [](Shown note) { EXPECT_EQ(note.labelOf("v_dlglabel"), ""); });
}

GUI_TEST(TipLook, LabelHasBorderAndShadowButNoHighlight)
{
    whileNoting("A note", [](Shown note) {
        EXPECT_TRUE(XtIsManaged(labelIn(note)));
        EXPECT_EQ(resource<Dimension>(labelIn(note), XmNborderWidth), 1);
        EXPECT_EQ(resource<Dimension>(labelIn(note), XmNshadowThickness), 1);
        EXPECT_EQ(resource<Dimension>(labelIn(note), XmNhighlightThickness), 0);
        EXPECT_EQ(resource<Dimension>(note.widget(), XmNshadowThickness), 1);
    });
}

GUI_TEST(TipLook, IsBlackOnPaleYellow)
{
    const screen::Colour background = paleYellow();
    whileNoting("A note", [&](Shown note) {
        Widget const label = labelIn(note);
        for (Widget const widget : {note.widget(), label})
            EXPECT_EQ(screen::colourOf(widget, resource<Pixel>(widget, XmNbackground)), background);
        EXPECT_EQ(resource<Pixel>(label, XmNforeground), BlackPixelOfScreen(XtScreen(label)));
        ASSERT_TRUE(screen::waitUntilPainted(label));
        const screen::Picture picture = screen::grab(label);
        EXPECT_EQ(picture.colours().front(), background);
        EXPECT_GT(picture.count(screen::colourNamed("black")), 10) << "no text";
    });
}

GUI_TEST(TipPlace, IsThePointer)
{
    for (const Point place : {Point{600, 500}, Point{20, 30}, Point{700, 100}})
        whileNoting(
            "A note",
            [&](Shown note) {
                const Rect rect = wm::clientRect(note.shell());
                EXPECT_EQ((Point{rect.x, rect.y}), place);
            },
            place);
}

GUI_TEST(TipPlace, IsThePointerInsideABoxAsWell)
{
    whileShown(boxKind("guiInfoBox"), [](Shown) {
        whileNoting("A note", [](Shown note) {
            const Rect rect = wm::clientRect(note.shell());
            EXPECT_EQ((Point{rect.x, rect.y}), kRestingPlace);
        });
    });
}

GUI_TEST(TipPlace, IsOnTheScreenAtItsEdges)
{
    for (const Point place : {Point{1279, 1023}, Point{1279, 500}, Point{600, 1023}, Point{0, 0}})
        whileNoting(
            "A note at the edge",
            [&](Shown note) {
                const Rect rect = wm::clientRect(note.shell());
                EXPECT_LE(rect.right(), 1280) << rect;
                EXPECT_LE(rect.bottom(), 1024) << rect;
                EXPECT_GE(rect.x, 0) << rect;
                EXPECT_GE(rect.y, 0) << rect;
            },
            place);
}

// Nothing of the box family: events go where they went before.
GUI_TEST(TipLook, IsNoTopWindow)
{
    whileNoting("A note", [](Shown) { EXPECT_EQ(guiGetTopWnd(), findWidget("v_mainwnd")); });
}
