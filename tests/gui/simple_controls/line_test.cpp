// Lines: across, down, rectangles, and those that are not made. Numbers worked out by hand, see
// simple_controls_support.h for the dialog units.

#include <Xm/Frame.h>
#include <Xm/Separator.h>

#include <optional>

#include "simple_controls_support.h"

using namespace kite::testing;

namespace {

// Dialog units of 1.125 by 0.875 pixels: letters of 4 by 6.
constexpr char kTinyFont[] = "-misc-fixed-medium-r-normal--6-60-75-75-c-40-iso8859-1";

enum class Form { Across, Down, Rectangle };

struct Line {
    int row, rows, x, width;
    Form form;
    Rect small;
    Rect large;
};

constexpr Line kInRows[] = {
    {0, 1, 10, 40, Form::Across, {31, 21, 75, 1}, {44, 31, 105, 1}},
    {2, 1, 10, 40, Form::Across, {31, 70, 75, 1}, {44, 105, 105, 1}},
    {2, 0, 10, 40, Form::Across, {31, 70, 75, 1}, {44, 105, 105, 1}},
    {2, -5, 10, 40, Form::Across, {31, 70, 75, 1}, {44, 105, 105, 1}},
    {0, 1, 10, 2, Form::Across, {31, 21, 3, 1}, {44, 31, 5, 1}},
    {0, 2, 10, 1, Form::Down, {31, 12, 1, 45}, {44, 18, 1, 68}},
    {0, 3, 10, 1, Form::Down, {31, 12, 1, 70}, {44, 18, 1, 105}},
    {2, 3, -3, 1, Form::Down, {7, 61, 1, 70}, {10, 91, 1, 105}},
    {0, 2, 10, 2, Form::Rectangle, {31, 10, 3, 49}, {44, 15, 5, 73}},
    {0, 3, 10, 40, Form::Rectangle, {31, 10, 75, 73}, {44, 15, 105, 110}},
    {2, 2, 10, 33, Form::Rectangle, {31, 59, 61, 49}, {44, 89, 86, 73}},
};

constexpr Line kAbsolute[] = {
    {5, 1, 10, 40, Form::Across, {31, 21, 75, 1}, {44, 31, 105, 1}},
    {5, 1, 10, 2, Form::Across, {31, 21, 3, 1}, {44, 31, 5, 1}},
    {5, 2, 10, 1, Form::Down, {31, 21, 1, 3}, {44, 31, 1, 5}},
    {5, 5, 10, 1, Form::Down, {31, 21, 1, 8}, {44, 31, 1, 13}},
    {5, 2, 10, 2, Form::Rectangle, {31, 21, 3, 3}, {44, 31, 5, 5}},
    {5, 5, 10, 40, Form::Rectangle, {31, 21, 75, 8}, {44, 31, 105, 13}},
};

struct NoLine {
    int rows, width;
};
constexpr NoLine kNotMadeInRows[] = {{1, 1}, {0, 1}, {-1, 1}, {1, 0}, {3, 0}, {1, -1}, {3, -40}};
constexpr NoLine kNotMadeAbsolute[] = {{1, 1}, {0, 1},  {-1, 1}, {0, 40}, {-3, 40},
                                       {5, 0}, {5, -1}, {0, 0},  {1, 0},  {1, -40}};

void expectForm(Widget line, Form form)
{
    EXPECT_EQ(XtClass(line), form == Form::Rectangle ? xmFrameWidgetClass : xmSeparatorWidgetClass);
    if (form == Form::Rectangle) {
        const auto shadow = resource<unsigned char>(line, XmNshadowType);
        EXPECT_TRUE(shadow == XmSHADOW_ETCHED_IN || shadow == XmSHADOW_ETCHED_OUT) << int{shadow};
    } else {
        EXPECT_EQ(resource<unsigned char>(line, XmNorientation),
                  form == Form::Down ? XmVERTICAL : XmHORIZONTAL);
    }
    EXPECT_STREQ(XtName(line), "v_dlgline");
}

template <std::size_t N>
void expectLines(const Line (&table)[N], Rect Line::*expected, int absolute)
{
    runDialog(
        [&] {
            guiUseAbsPos(absolute);
            for (std::size_t i = 0; i < N; ++i) {
                const Line& line = table[i];
                guiLine(static_cast<int>(i) + 1, line.row, line.rows, line.x, line.width);
                ASSERT_EQ(controlsOfBoard().size(), i + 1) << "line " << i << " was not made";
            }
        },
        [&](Shown) {
            for (std::size_t i = 0; i < N; ++i) {
                SCOPED_TRACE("line " + std::to_string(i));
                Widget const line = controlOf(static_cast<int>(i) + 1);
                expectForm(line, table[i].form);
                EXPECT_EQ(placeOf(line), table[i].*expected);
            }
        });
}

void expectAllLines(Rect Line::*expected)
{
    expectLines(kInRows, expected, 0);
    expectLines(kAbsolute, expected, 1);
}

template <std::size_t N>
void expectNotMade(const NoLine (&table)[N])
{
    for (const NoLine& line : table) {
        guiLine(1, 0, line.rows, 10, line.width);
        EXPECT_EQ(controlsOfBoard().size(), 0U) << line.rows << " rows, width " << line.width;
    }
}

}  // namespace

GUI_STARTUP_TEST(Line, StandsWhereTheSmallFontPutsIt)
{
    setDialogFont(kSmallFont);
    app.run([] { expectAllLines(&Line::small); });
}

GUI_STARTUP_TEST(Line, StandsWhereTheLargeFontPutsIt)
{
    setDialogFont(kLargeFont);
    app.run([] { expectAllLines(&Line::large); });
}

// Nothing is made, nothing is said, and the id stays free.
GUI_TEST(Line, OfNoLengthIsNotMade)
{
    ASSERT_EQ(guiDialog(""), 0);
    EXPECT_THAT(errorsDuring([] {
                    expectNotMade(kNotMadeInRows);
                    guiUseAbsPos(1);
                    expectNotMade(kNotMadeAbsolute);
                }),
                ::testing::IsEmpty());
    guiCheck(1, 0, 0, 40, "has the id of all of them");
    EXPECT_STREQ(XtName(lastControl()), "v_dlgcheck");
    guiClose(0);
}

// It adds nothing to the size of the dialog either.
GUI_TEST(Line, OfNoLengthTakesNoRoom)
{
    Rect without;
    runDialog([] { guiCheck(1, 0, 0, 40, "Check"); },
              [&](Shown dialog) { without = placeOf(dialog.widget()); });
    runDialog(
        [] {
            guiCheck(1, 0, 0, 40, "Check");
            guiLine(-1, 9, 3, 200, 0);
            guiLine(-1, 9, 1, 200, 1);
        },
        [&](Shown dialog) {
            EXPECT_EQ(placeOf(dialog.widget()).width, without.width);
            EXPECT_EQ(placeOf(dialog.widget()).height, without.height);
        });
}

// In pixels it is one line, though its height is two units: a rectangle could not be seen.
GUI_STARTUP_TEST(Line, OfOnePixelIsDrawnAcross)
{
    setDialogFont(kTinyFont);
    app.run([] {
        runDialog(
            [] {
                guiUseAbsPos(1);
                guiLine(1, 5, 2, 10, 40);
                guiLine(2, 5, 3, 10, 40);
            },
            [](Shown) {
                expectForm(controlOf(1), Form::Across);
                EXPECT_EQ(placeOf(controlOf(1)), (Rect{19, 10, 45, 1}));
                expectForm(controlOf(2), Form::Rectangle);
                EXPECT_EQ(placeOf(controlOf(2)), (Rect{19, 10, 45, 2}));
            });
    });
}

// Seen on the screen: what stands in a rectangle is not covered, whichever of them was made first.
GUI_TEST(Line, RectanglesLieAroundOtherControls)
{
    runDialog(
        [] {
            guiCheck(1, 0, 5, 60, "Made before");
            guiLine(-1, 0, 2, 0, 80);
            guiCheck(2, 1, 5, 60, "Made after");
        },
        [&](Shown dialog) {
            EXPECT_THAT(eventsDuring([&] { dialog.click("Made before"); }),
                        ::testing::Contains(toDialog(GUI_EVENT_CHECK, 1, 1)));
            EXPECT_THAT(eventsDuring([&] { dialog.click("Made after"); }),
                        ::testing::Contains(toDialog(GUI_EVENT_CHECK, 2, 1)));
        });
}
