// How many items the lists of choices and combo boxes show: the user's setting "ch_height", divided by 8
// and by the height of a dialog unit.

#include <Xm/List.h>

#include "list_controls_support.h"

using namespace kite::testing;

namespace {

enum Id { kChoice = 1, kCombo };

int visibleItems(int id)
{
    return resource<int>(listOf(id), XmNvisibleItemCount);
}

void expectVisible(int expected)
{
    for (const int id : {kChoice, kCombo}) EXPECT_EQ(visibleItems(id), expected) << id;
}

void runWithBoth(int items, int expected)
{
    SCOPED_TRACE(std::to_string(items) + " items");
    runDialog({.build =
                   [] {
                       guiChoice(kChoice, 0, 0, 60);
                       guiCombo(kCombo, 1, 0, 60);
                   },
               .fill =
                   [&] {
                       for (const int id : {kChoice, kCombo}) appendItems(id, items);
                       expectVisible(expected);
                   },
               .use = [&](Shown) { expectVisible(expected); }});
}

void expectMost(const std::string& font, int expected)
{
    setDialogFont(font);
    App::instance().run([&] {
        ASSERT_EQ(guiDialog(""), 0);
        guiChoice(kChoice, 0, 0, 60);
        guiCombo(kCombo, 1, 0, 60);
        expectVisible(expected);
        guiClose(0);

        runWithBoth(expected + 1, expected);
        runWithBoth(expected, expected);
        if (expected > 1) runWithBoth(expected - 1, expected - 1);
    });
}

}  // namespace

GUI_STARTUP_TEST(DropDownHeight, IsEightItemsOfUnitsOfTwoPixels)
{
    expectMost(kMiddleFont, 8);
}

GUI_STARTUP_TEST(DropDownHeight, IsFewerItemsOfALargerFont)
{
    expectMost(kLargeFont, 6);
}

// 15 / 1.75 is 8.57.
GUI_STARTUP_TEST(DropDownHeight, IsDividedByEightWithoutARest)
{
    host.profile().setInt("ch_height", 127);
    expectMost(kSmallFont, 8);
}

// 16 / 1.75 is 9.14.
GUI_STARTUP_TEST(DropDownHeight, IsDividedByTheUnitWithoutARest)
{
    host.profile().setInt("ch_height", 135);
    expectMost(kSmallFont, 9);
}

GUI_STARTUP_TEST(DropDownHeight, IsOneItemAtLeast)
{
    host.profile().setInt("ch_height", 7);
    expectMost(kSmallFont, 1);
}

GUI_STARTUP_TEST(DropDownHeight, IsThatOfTheStart)
{
    host.profile().setInt("ch_height", 64);
    setDialogFont(kMiddleFont);
    app.init();
    host.profile().setInt("ch_height", 128);
    app.run([] { runWithBoth(20, 4); });
}
