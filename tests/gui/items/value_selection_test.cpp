// What guiGetSel tells of controls that have a value.

#include <climits>

#include "items_support.h"

using namespace kite::testing;

GUI_TEST(ValueSelection, IsTheValueAndOneLessForASpinBox)
{
    withItemControls([] {
        guiSetPos(Slider, 40);
        EXPECT_EQ(guiGetSel(Slider), 40);
        guiSetPos(Progress, 40);
        EXPECT_EQ(guiGetSel(Progress), 41);
        guiSetText(Spin, "40");
        EXPECT_EQ(guiGetSel(Spin), 39);
        guiSetText(Spin, "0");
        EXPECT_EQ(guiGetSel(Spin), -1);
    });
}
