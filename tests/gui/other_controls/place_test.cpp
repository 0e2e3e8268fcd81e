// Where the controls stand, to the pixel, and which way scales lie. All numbers are worked out by hand from
// the dialog units: 1.875 by 1.75 pixels for the small font, 2.625 by 2.625 for the large one.

#include <climits>

#include <Xm/Xm.h>

#include "other_controls_support.h"

using namespace kite::testing;

namespace {

constexpr unsigned char kNeither = XmNO_ORIENTATION;

struct Row {
    Kind kind;
    int row, rows, x, width;  // spin boxes have no rows
    Rect small;
    Rect large;
    unsigned char orientation = kNeither;
};

using Table = std::vector<Row>;

const Table kInRows{
    {kText, 0, 1, 10, 40, {31, 12, 75, 21}, {44, 18, 105, 31}},
    {kText, 3, 4, 10, 33, {31, 85, 61, 94}, {44, 128, 86, 141}},
    {kText, -1, 2, -3, 33, {7, -12, 61, 45}, {10, -18, 86, 68}},
    {kTree, 0, 1, 10, 40, {31, 12, 75, 21}, {44, 18, 105, 31}},
    {kTree, 3, 4, 10, 33, {31, 85, 61, 94}, {44, 128, 86, 141}},
    {kSpin, 0, 0, 10, 40, {31, 12, 75, 21}, {44, 18, 105, 31}},
    {kSpin, 3, 0, 10, 33, {31, 85, 61, 21}, {44, 128, 86, 31}},
    // In one row, and in less, in the middle of it. Below 12 pixels they are 12 high, but 15 wide.
    {kSlider, 0, 1, 10, 40, {31, 21, 75, 12}, {44, 31, 105, 12}, XmHORIZONTAL},
    {kSlider, 3, 1, 10, 6, {31, 94, 15, 12}, {44, 141, 15, 12}, XmHORIZONTAL},
    {kSlider, 3, 1, 10, 5, {31, 94, 15, 12}, {44, 141, 13, 12}, XmHORIZONTAL},
    {kSlider, 3, 0, 10, 1, {31, 94, 15, 12}, {44, 141, 15, 12}, XmHORIZONTAL},
    {kSlider, 3, -1, 10, 40, {31, 94, 75, 12}, {44, 141, 105, 12}, XmHORIZONTAL},
    // In several rows around them, but a line within them. Both sides of the square.
    {kSlider, 3, 2, 10, 1, {31, 85, 15, 45}, {44, 128, 15, 68}, XmVERTICAL},
    {kSlider, 3, 2, 10, 2, {31, 84, 15, 49}, {44, 126, 15, 73}, XmVERTICAL},
    {kSlider, 3, 2, 10, 27, {31, 84, 50, 49}, {44, 126, 70, 73}, XmVERTICAL},
    {kSlider, 3, 2, 10, 28, {31, 84, 52, 49}, {44, 126, 73, 73}, XmHORIZONTAL},
    {kSlider, 3, 4, 10, 33, {31, 84, 61, 98}, {44, 126, 86, 147}, XmVERTICAL},
    // At least 5 units high and wide.
    {kProgress, 0, 1, 10, 40, {31, 21, 75, 8}, {44, 31, 105, 13}, XmHORIZONTAL},
    {kProgress, 3, 1, 10, 2, {31, 94, 9, 8}, {44, 141, 13, 13}, XmHORIZONTAL},
    {kProgress, 3, 0, 10, 6, {31, 94, 11, 8}, {44, 141, 15, 13}, XmHORIZONTAL},
    {kProgress, 3, 2, 10, 1, {31, 85, 9, 45}, {44, 128, 13, 68}, XmVERTICAL},
    {kProgress, 3, 2, 10, 27, {31, 84, 50, 49}, {44, 126, 70, 73}, XmVERTICAL},
    {kProgress, 3, 2, 10, 28, {31, 84, 52, 49}, {44, 126, 73, 73}, XmHORIZONTAL},
    {kProgress, 3, 4, 10, 33, {31, 84, 61, 98}, {44, 126, 86, 147}, XmVERTICAL},
};

const Table kAbsolute{
    {kText, 5, 1, 10, 40, {31, 21, 75, 1}, {44, 31, 105, 2}},
    {kText, 5, 40, 10, 40, {31, 21, 75, 70}, {44, 31, 105, 105}},
    {kTree, 5, 40, 10, 40, {31, 21, 75, 70}, {44, 31, 105, 105}},
    {kSpin, 5, 0, 10, 40, {31, 21, 75, 21}, {44, 31, 105, 31}},
    {kSlider, 5, 1, 10, 40, {31, 21, 75, 12}, {44, 31, 105, 12}, XmHORIZONTAL},
    {kSlider, 5, 6, 10, 6, {31, 21, 15, 12}, {44, 31, 15, 15}, XmHORIZONTAL},
    {kSlider, 5, 7, 10, 7, {31, 21, 13, 12}, {44, 31, 18, 18}, XmHORIZONTAL},
    {kSlider, 5, 8, 10, 7, {31, 21, 13, 14}, {44, 31, 18, 21}, XmVERTICAL},
    {kSlider, 5, 40, 10, 1, {31, 21, 15, 70}, {44, 31, 15, 105}, XmVERTICAL},
    {kSlider, 5, 40, 10, 40, {31, 21, 75, 70}, {44, 31, 105, 105}, XmHORIZONTAL},
    {kSlider, 5, 41, 10, 40, {31, 21, 75, 71}, {44, 31, 105, 107}, XmVERTICAL},
    {kProgress, 5, 1, 10, 40, {31, 21, 75, 8}, {44, 31, 105, 13}, XmHORIZONTAL},
    {kProgress, 5, 5, 10, 40, {31, 21, 75, 8}, {44, 31, 105, 13}, XmHORIZONTAL},
    {kProgress, 5, 6, 10, 40, {31, 21, 75, 10}, {44, 31, 105, 15}, XmHORIZONTAL},
    {kProgress, 5, 2, 10, 1, {31, 21, 9, 8}, {44, 31, 13, 13}, XmHORIZONTAL},  // both are 5 units
    {kProgress, 5, 40, 10, 1, {31, 21, 9, 70}, {44, 31, 13, 105}, XmVERTICAL},
    {kProgress, 5, 40, 10, 39, {31, 21, 73, 70}, {44, 31, 102, 105}, XmVERTICAL},
    {kProgress, 5, 40, 10, 40, {31, 21, 75, 70}, {44, 31, 105, 105}, XmHORIZONTAL},
};

void make(int id, const Row& row)
{
    switch (row.kind) {
    case kText: guiText(id, row.row, row.rows, row.x, row.width, 0); break;
    case kTree: guiTree(id, row.row, row.rows, row.x, row.width); break;
    case kSpin: guiSpin(id, row.row, row.x, row.width); break;
    case kSlider: guiSlider(id, row.row, row.rows, row.x, row.width); break;
    case kProgress: guiProgress(id, row.row, row.rows, row.x, row.width); break;
    }
}

// As they were made, and as they are shown.
void expectPlaces(const Table& table, Rect Row::*expected, int isAbsolute)
{
    const auto expectAll = [&] {
        const std::vector<Widget> controls = controlsOfBoard();
        ASSERT_EQ(controls.size(), table.size());
        for (std::size_t i = 0; i < table.size(); ++i) {
            SCOPED_TRACE(::testing::Message() << "entry " << i << ", kind " << table[i].kind);
            EXPECT_EQ(placeOf(controls[i]), table[i].*expected);
            if (table[i].orientation != kNeither) {
                EXPECT_EQ(+resource<unsigned char>(controls[i], XmNorientation),
                          +table[i].orientation);
            }
        }
    };
    runDialog(
        [&] {
            guiUseAbsPos(isAbsolute);
            int id = 0;
            for (const Row& row : table) make(++id, row);
            expectAll();
        },
        [&](Shown) { expectAll(); });
}

}  // namespace

GUI_STARTUP_TEST(OtherControlPlace, IsThatOfTheSmallFont)
{
    setDialogFont(kSmallFont);
    app.run([] {
        expectPlaces(kInRows, &Row::small, 0);
        expectPlaces(kAbsolute, &Row::small, 1);
    });
}

GUI_STARTUP_TEST(OtherControlPlace, IsThatOfTheLargeFont)
{
    setDialogFont(kLargeFont);
    app.run([] {
        expectPlaces(kInRows, &Row::large, 0);
        expectPlaces(kAbsolute, &Row::large, 1);
    });
}

// A dialog with controls of extreme measures can be built and used, and the others stay where they are.
GUI_STARTUP_TEST(OtherControlPlace, HugeAndNegativeMeasuresDoNoHarm)
{
    setDialogFont(kSmallFont);
    app.run([] {
        for (const int extreme : {-1, -32768, INT_MIN, 32767, 100000, INT_MAX}) {
            SCOPED_TRACE(extreme);
            ASSERT_EQ(guiDialog("Extreme"), 0);
            guiCheck(1, 0, 10, 40, "ordinary");
            Widget const ordinary = lastControl();
            for (const int rows : {1, extreme}) {
                guiText(rows == 1 ? 2 : 3, extreme, rows, extreme, extreme, 0);
                guiTree(rows == 1 ? 4 : 5, extreme, rows, extreme, extreme);
                guiSpin(-1, extreme, extreme, extreme);
                guiSlider(-1, extreme, rows, extreme, extreme);
                guiProgress(-1, extreme, rows, extreme, extreme);
            }
            EXPECT_EQ(placeOf(ordinary), (Rect{30, 13, 77, 19}));
            EXPECT_GE(controlsOfBoard().size(), 7U);
            guiClose(0);
        }
    });
}

// Nothing can be smaller than nothing; a spin box without room for its arrows can still be shown.
GUI_TEST(OtherControlPlace, SmallWidthsCanBeShown)
{
    for (const int width : {-40, 0, 1, 7, 8, 9}) {
        SCOPED_TRACE(width);
        runDialog(
            [&] {
                guiCheck(1, 0, 0, 40, "ordinary");
                guiText(2, 1, 2, 0, width, 0);
                guiTree(3, 3, 2, 0, width);
                guiSpin(4, 5, 0, width);
            },
            [](Shown dialog) {
                EXPECT_TRUE(isShown(controlOf(1)));
                dialog.key(XK_space);
                EXPECT_TRUE(pumpUntil([] { return isToggled(1); }));
            });
    }
}
