// The layout metrics, and the two switches that each dialog begins without.

#include "dialogs_support.h"

using namespace kite::testing;

namespace {

int topOf(int id)
{
    return resource<Position>(control(id), XmNy);
}

// At the row of that number, or with the top at that unit.
int rowTop(int row)
{
    return static_cast<int>((row * 14 + 2 + 7) * unitsOf(kUsualFont).down);
}

int unitTop(int unit)
{
    return static_cast<int>((unit + 7) * unitsOf(kUsualFont).down);
}

void addLabel(int id)
{
    guiLabel(id, 3, 0, 20, "Label");
}

int borderOf(int id)
{
    return resource<Dimension>(control(id), XmNborderWidth);
}

}  // namespace

// They need neither a window nor a start.
GUI_STARTUP_TEST(LayoutMetrics, AreThese)
{
    EXPECT_EQ(guiGetDefRowStep(), 14);
    EXPECT_EQ(guiGetMaxCtrlHeight(), 12);
    EXPECT_EQ(guiGetLabelHeight(), 8);
    EXPECT_EQ(guiGetEditHeight(), 12);
    EXPECT_EQ(guiGetButtonHeight(), 12);
    EXPECT_EQ(guiGetCheckHeight(), 10);
    EXPECT_EQ(guiGetRadioHeight(), 10);
    EXPECT_EQ(guiGetChoiceHeight(), 12);
}

GUI_TEST(AbsolutePositions, ConcernTheControlsThatFollow)
{
    ASSERT_EQ(guiDialog("Positions"), 0);
    addLabel(1);
    guiUseAbsPos(1);
    addLabel(2);
    guiUseAbsPos(0);
    addLabel(3);
    guiUseAbsPos(-7);
    addLabel(4);
    EXPECT_EQ(topOf(1), rowTop(3));
    EXPECT_EQ(topOf(2), unitTop(3));
    EXPECT_EQ(topOf(3), rowTop(3));
    EXPECT_EQ(topOf(4), unitTop(3));
}

GUI_TEST(AbsolutePositions, EndWithTheNextDialog)
{
    guiUseAbsPos(1);
    ASSERT_EQ(guiDialog("First"), 0);
    addLabel(1);
    EXPECT_EQ(topOf(1), rowTop(3));
    guiUseAbsPos(1);
    guiClose(0);

    ASSERT_EQ(guiDialog("Second"), 0);
    addLabel(1);
    EXPECT_EQ(topOf(1), rowTop(3));
    guiUseAbsPos(1);
    runWhileShown([](Shown) {
        ASSERT_EQ(guiDialog("Inner"), 0);
        addLabel(1);
        EXPECT_EQ(topOf(1), rowTop(3));
        guiClose(0);
    });
}

GUI_TEST(AbsolutePositions, SurviveARefusedDialog)
{
    ASSERT_EQ(guiDialog("First"), 0);
    guiUseAbsPos(1);
    guiShowAllBorders();
    EXPECT_MISUSE(guiDialog("Second"), "Dialog: you must start the previous dialog first", -1);
    addLabel(1);
    EXPECT_EQ(topOf(1), unitTop(3) - 1);
    EXPECT_EQ(borderOf(1), 1);
}

GUI_TEST(AllBorders, AreShownOnTheControlsThatFollow)
{
    ASSERT_EQ(guiDialog("Borders"), 0);
    addLabel(1);
    guiShowAllBorders();
    addLabel(2);
    guiShowAllBorders();  // it is no counter
    addLabel(3);
    EXPECT_EQ(borderOf(1), 0);
    EXPECT_EQ(borderOf(2), 1);
    EXPECT_EQ(borderOf(3), 1);
    EXPECT_EQ(topOf(2), rowTop(3) - 1);
    EXPECT_EQ(resource<Position>(control(2), XmNx), resource<Position>(control(1), XmNx) - 1);
    EXPECT_EQ(resource<Dimension>(control(2), XmNwidth), resource<Dimension>(control(1), XmNwidth));
}

GUI_TEST(AllBorders, EndWithTheNextDialog)
{
    guiShowAllBorders();
    ASSERT_EQ(guiDialog("First"), 0);
    addLabel(1);
    EXPECT_EQ(borderOf(1), 0);
    guiShowAllBorders();
    guiClose(0);
    ASSERT_EQ(guiDialog("Second"), 0);
    addLabel(1);
    EXPECT_EQ(borderOf(1), 0);
}

GUI_TEST(ContextHelp, DoesNothing)
{
    guiContextHelp();
    recorder.clear();
    buildDialog();
    guiContextHelp();
    EXPECT_EQ(runWhileShown([](Shown) { guiContextHelp(); }), 1);
    EXPECT_THAT(recorder.events(), ::testing::ElementsAre(toDialog(GUI_EVENT_INIT)));
}
