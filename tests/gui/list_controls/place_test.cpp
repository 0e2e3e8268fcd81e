// Where lists, choices and combo boxes stand, to the pixel. All numbers are worked out by hand from the
// dialog units: 1.875 by 1.75 pixels for the small font, 2.625 by 2.625 for the large one.

#include "list_controls_support.h"

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
        {"list of 1 row",
         [](int id) { guiList(id, 0, 1, 10, 40, GUI_BROWSE); },
         {31, 12, 75, 21},
         {44, 18, 105, 31}},
        {"list of 3 rows, row 3",
         [](int id) { guiList(id, 3, 3, 0, 33, GUI_EXTENDED); },
         {13, 85, 61, 70},
         {18, 128, 86, 105}},
        {"list, row -1",
         [](int id) { guiList(id, -1, 6, 0, 40, GUI_MULTIPLE); },
         {13, -12, 75, 143},
         {18, -18, 105, 215}},
        {"choice, row 0",
         [](int id) { guiChoice(id, 0, 10, 40); },
         {31, 12, 75, 21},
         {44, 18, 105, 31}},
        {"choice, row 3",
         [](int id) { guiChoice(id, 3, 0, 33); },
         {13, 85, 61, 21},
         {18, 128, 86, 31}},
        {"combo box, row 0",
         [](int id) { guiCombo(id, 0, 10, 40); },
         {31, 12, 75, 21},
         {44, 18, 105, 31}},
        {"combo box, row 3",
         [](int id) { guiCombo(id, 3, -3, 33); },
         {7, 85, 61, 21},
         {10, 128, 86, 31}},
    };
    return table;
}

const Table& atAbsolutePositions()
{
    static const Table table{
        {"list of 30 units",
         [](int id) { guiList(id, 5, 30, 10, 40, GUI_BROWSE); },
         {31, 21, 75, 52},
         {44, 31, 105, 78}},
        {"choice", [](int id) { guiChoice(id, 5, 10, 40); }, {31, 21, 75, 21}, {44, 31, 105, 31}},
        {"combo box",
         [](int id) { guiCombo(id, 42, 10, 40); },
         {31, 85, 75, 21},
         {44, 128, 105, 31}},
    };
    return table;
}

void expectPlaces(const Table& table, Rect Row::*place, int absolute)
{
    for (const Row& row : table) {
        SCOPED_TRACE(row.what);
        ASSERT_EQ(guiDialog(""), 0);
        guiUseAbsPos(absolute);
        row.make(1);
        EXPECT_EQ(placeOf(controlOf(1)), row.*place);
        guiClose(0);
    }
}

void expectAllPlaces(Rect Row::*place)
{
    expectPlaces(inRows(), place, 0);
    expectPlaces(atAbsolutePositions(), place, 1);
    expectPlaces(atAbsolutePositions(), place, -1);
}

}  // namespace

GUI_STARTUP_TEST(ListPlace, InASmallFont)
{
    setDialogFont(kSmallFont);
    app.run([] { expectAllPlaces(&Row::small); });
}

GUI_STARTUP_TEST(ListPlace, InALargeFont)
{
    setDialogFont(kLargeFont);
    app.run([] { expectAllPlaces(&Row::large); });
}

// What they are filled with and being shown changes nothing of it.
GUI_STARTUP_TEST(ListPlace, StaysWhenTheyAreFilledAndShown)
{
    setDialogFont(kSmallFont);
    app.run([] {
        runDialog({.build =
                       [] {
                           guiList(1, 0, 3, 0, 40, GUI_BROWSE);
                           guiChoice(2, 3, 0, 40);
                           guiCombo(3, 4, 0, 40);
                       },
                   .fill =
                       [] {
                           for (const int id : {1, 2, 3}) {
                               appendItems(id, 20);
                               guiAppendItem(id, std::string(200, 'W').c_str());
                           }
                       },
                   .use =
                       [](Shown) {
                           EXPECT_EQ(placeOf(controlOf(1)), (Rect{13, 12, 75, 70}));
                           EXPECT_EQ(placeOf(controlOf(2)), (Rect{13, 85, 75, 21}));
                           EXPECT_EQ(placeOf(controlOf(3)), (Rect{13, 110, 75, 21}));
                       }});
    });
}
