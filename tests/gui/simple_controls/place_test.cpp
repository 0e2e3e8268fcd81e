// Where controls stand, to the pixel. All numbers are worked out by hand from the dialog units:
// 1.875 by 1.75 pixels for the small font, 2.625 by 2.625 for the large one.

#include "simple_controls_support.h"

using namespace kite::testing;

namespace {

struct Row {
    std::string what;
    std::function<void(int id)> make;
    Rect small;
    Rect large;
};

using Table = std::vector<Row>;

const Table& inRows()
{
    static const Table table{
        {"label, row 0",
         [](int id) { guiLabel(id, 0, 10, 40, "L"); },
         {31, 15, 75, 14},
         {44, 23, 105, 21}},
        {"label, row 3",
         [](int id) { guiLabel(id, 3, 10, 33, "L"); },
         {31, 89, 61, 14},
         {44, 133, 86, 21}},
        {"label left of the margin",
         [](int id) { guiLabel(id, 0, -3, 33, "L"); },
         {7, 15, 61, 14},
         {10, 23, 86, 21}},
        {"label off the board",
         [](int id) { guiLabel(id, 0, -10, 33, "L"); },
         {-5, 15, 61, 14},
         {-7, 23, 86, 21}},
        {"label, row -1",
         [](int id) { guiLabel(id, -1, 10, 40, "L"); },
         {31, -8, 75, 14},
         {44, -13, 105, 21}},
        {"edit, row 0",
         [](int id) { guiEdit(id, 0, 10, 40, 0, 0); },
         {31, 12, 75, 21},
         {44, 18, 105, 31}},
        {"edit, row 3",
         [](int id) { guiEdit(id, 3, 0, 33, 0, 0); },
         {13, 85, 61, 21},
         {18, 128, 86, 31}},
        {"hidden edit",
         [](int id) { guiEdit(id, 3, 0, 33, 1, 1); },
         {13, 85, 61, 21},
         {18, 128, 86, 31}},
        {"button, row 0",
         [](int id) { guiButton(id, 0, 10, 40, "B", 0); },
         {30, 11, 77, 23},
         {43, 17, 107, 33}},
        {"button, row 3",
         [](int id) { guiButton(id, 3, 10, 33, "B", 0); },
         {30, 84, 63, 23},
         {43, 127, 88, 33}},
        {"button of no width",
         [](int id) { guiButton(id, 3, 10, 0, "B", 0); },
         {30, 84, 2, 23},
         {43, 127, 2, 33}},
        {"check box, row 0",
         [](int id) { guiCheck(id, 0, 10, 40, "C"); },
         {30, 13, 77, 19},
         {43, 20, 107, 28}},
        {"check box, row 3",
         [](int id) { guiCheck(id, 3, 10, 33, "C"); },
         {30, 86, 63, 19},
         {43, 130, 88, 28}},
        {"check box, row -1",
         [](int id) { guiCheck(id, -1, 10, 40, "C"); },
         {30, -11, 77, 19},
         {43, -16, 107, 28}},
        {"check box of no width",
         [](int id) { guiCheck(id, 0, 10, 0, "C"); },
         {30, 13, 2, 19},
         {43, 20, 2, 28}},
        {"radio button, row 0",
         [](int id) { guiRadio(id, 0, 10, 40, "R"); },
         {30, 13, 77, 19},
         {43, 20, 107, 28}},
        {"radio button, row 3",
         [](int id) { guiRadio(id, 3, 10, 33, "R"); },
         {30, 86, 63, 19},
         {43, 130, 88, 28}},
        {"image of 1 row",
         [](int id) { guiImage(id, 0, 1, 10, 40, 0); },
         {31, 12, 75, 21},
         {44, 18, 105, 31}},
        {"image of 4 rows",
         [](int id) { guiImage(id, 3, 4, 10, 33, 1); },
         {31, 85, 61, 94},
         {44, 128, 86, 141}},
    };
    return table;
}

const Table& atAbsolutePlaces()
{
    static const Table table{
        {"label",
         [](int id) { guiLabel(id, 5, 10, 40, "L"); },
         {31, 21, 75, 14},
         {44, 31, 105, 21}},
        {"edit", [](int id) { guiEdit(id, 5, 10, 40, 0, 0); }, {31, 21, 75, 21}, {44, 31, 105, 31}},
        {"button",
         [](int id) { guiButton(id, 5, 10, 40, "B", 0); },
         {30, 20, 77, 23},
         {43, 30, 107, 33}},
        {"check box",
         [](int id) { guiCheck(id, 5, 10, 40, "C"); },
         {30, 20, 77, 19},
         {43, 30, 107, 28}},
        {"radio button",
         [](int id) { guiRadio(id, 5, 10, 40, "R"); },
         {30, 20, 77, 19},
         {43, 30, 107, 28}},
        {"image of 1 row",
         [](int id) { guiImage(id, 5, 1, 10, 40, 0); },
         {31, 21, 75, 21},
         {44, 31, 105, 31}},
        {"image of 4 rows",
         [](int id) { guiImage(id, 5, 4, 10, 40, 0); },
         {31, 21, 75, 94},
         {44, 31, 105, 141}},
        {"label at the top",
         [](int id) { guiLabel(id, -7, -7, 40, "L"); },
         {0, 0, 75, 14},
         {0, 0, 105, 21}},
        {"check box above",
         [](int id) { guiCheck(id, -10, -10, 40, "C"); },
         {-6, -6, 77, 19},
         {-8, -8, 107, 28}},
    };
    return table;
}

// A border of one pixel stands outside; only labels, check boxes and radio buttons have it.
const Table& withBorders()
{
    static const Table table{
        {"label",
         [](int id) { guiLabel(id, 3, 10, 40, "L"); },
         {30, 88, 75, 14},
         {43, 132, 105, 21}},
        {"check box",
         [](int id) { guiCheck(id, 3, 10, 40, "C"); },
         {29, 85, 77, 19},
         {42, 129, 107, 28}},
        {"radio button",
         [](int id) { guiRadio(id, 3, 10, 40, "R"); },
         {29, 85, 77, 19},
         {42, 129, 107, 28}},
        {"edit",
         [](int id) { guiEdit(id, 3, 10, 40, 0, 0); },
         {31, 85, 75, 21},
         {44, 128, 105, 31}},
        {"button",
         [](int id) { guiButton(id, 3, 10, 40, "B", 0); },
         {30, 84, 77, 23},
         {43, 127, 107, 33}},
        {"image",
         [](int id) { guiImage(id, 3, 1, 10, 40, 0); },
         {31, 85, 75, 21},
         {44, 128, 105, 31}},
    };
    return table;
}

// As they were made, and as they are shown.
void expectPlaces(const Table& table, Rect Row::*expected, const std::function<void()>& mode)
{
    std::vector<Widget> widgets;
    const auto expectAll = [&] {
        for (std::size_t i = 0; i < table.size(); ++i)
            EXPECT_EQ(placeOf(widgets[i]), table[i].*expected) << table[i].what;
    };
    runDialog(
        [&] {
            mode();
            for (const Row& row : table) {
                row.make(static_cast<int>(widgets.size()) + 1);
                widgets.push_back(lastControl());
            }
            ASSERT_EQ(controlsOfBoard().size(), table.size());
            expectAll();
        },
        [&](Shown) { expectAll(); });
}

void expectAllPlaces(Rect Row::*expected)
{
    expectPlaces(inRows(), expected, [] {});
    expectPlaces(atAbsolutePlaces(), expected, [] { guiUseAbsPos(1); });
    expectPlaces(withBorders(), expected, guiShowAllBorders);
}

}  // namespace

GUI_STARTUP_TEST(ControlPlace, IsThatOfTheSmallFont)
{
    setDialogFont(kSmallFont);
    app.run([] { expectAllPlaces(&Row::small); });
}

GUI_STARTUP_TEST(ControlPlace, IsThatOfTheLargeFont)
{
    setDialogFont(kLargeFont);
    app.run([] { expectAllPlaces(&Row::large); });
}

// The switch counts for the controls that follow, in either direction.
GUI_STARTUP_TEST(ControlPlace, ChangesFromRowsToAbsoluteAndBack)
{
    setDialogFont(kSmallFont);
    app.run([] {
        runDialog(
            [] {
                guiCheck(1, 2, 0, 40, "in a row");
                guiUseAbsPos(-1);
                guiCheck(2, 2, 0, 40, "absolute");
                guiUseAbsPos(0);
                guiCheck(3, 2, 0, 40, "in a row");
            },
            [](Shown) {
                EXPECT_EQ(placeOf(controlOf(1)).y, 62);  // trunc((2 * 14 + 1 + 7) * 1.75) - 1
                EXPECT_EQ(placeOf(controlOf(2)).y, 14);  // trunc((2 + 7) * 1.75) - 1
                EXPECT_EQ(placeOf(controlOf(3)).y, 62);
            });
    });
}

// A dialog with a control of extreme measures can be built and shown, and the others stay where they are.
GUI_STARTUP_TEST(ControlPlace, HugeAndNegativeMeasuresDoNoHarm)
{
    setDialogFont(kSmallFont);
    app.run([] {
        constexpr int kExtremes[] = {-1, -32768, INT_MIN, 32767, 100000, INT_MAX};
        for (const int extreme : kExtremes) {
            SCOPED_TRACE(extreme);
            ASSERT_EQ(guiDialog("Extreme"), 0);
            guiCheck(1, 0, 10, 40, "ordinary");
            Widget const ordinary = lastControl();
            guiLabel(2, extreme, extreme, extreme, "L");
            guiEdit(3, extreme, extreme, extreme, 0, 0);
            guiButton(4, extreme, extreme, extreme, "B", 0);
            guiCheck(5, extreme, extreme, extreme, "C");
            guiRadio(6, extreme, extreme, extreme, "R");
            guiImage(7, extreme, extreme, extreme, extreme, 0);
            guiLine(8, extreme, extreme, extreme, extreme);
            EXPECT_EQ(placeOf(ordinary), (Rect{30, 13, 77, 19}));
            EXPECT_GE(controlsOfBoard().size(), 7U);
            guiClose(0);
        }
    });
}

// Nothing can be smaller than nothing.
GUI_TEST(ControlPlace, NegativeWidthsAreNoWidths)
{
    const std::function<void(int width)> kinds[] = {
        [](int width) { guiLabel(1, 0, 0, width, "Label"); },
        [](int width) { guiEdit(1, 0, 0, width, 0, 0); },
        [](int width) { guiButton(1, 0, 0, width, "Button", 0); },
        [](int width) { guiCheck(1, 0, 0, width, "Check"); },
        [](int width) { guiRadio(1, 0, 0, width, "Radio"); },
        [](int width) { guiImage(1, 0, 1, 0, width, 1); },
    };
    const auto placeWith = [](const auto& make, int width) {
        EXPECT_EQ(guiDialog(""), 0);
        make(width);
        const Rect place = placeOf(lastControl());
        guiClose(0);
        return place;
    };
    for (const auto& make : kinds)
        for (const int width : {-1, -40, INT_MIN})
            EXPECT_EQ(placeWith(make, width), placeWith(make, 0))
                << "kind " << &make - kinds << ", width " << width;
}
