// Choices and combo boxes in which all items are empty.

#include "items_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

GUI_TEST(EmptyItem, CanBeTheOnlyOneOfAChoice)
{
    withItemControls([] {
        guiAppendItem(ChoiceBox, "");
        EXPECT_THAT(itemsOf(ChoiceBox), ElementsAre(""));
        EXPECT_EQ(guiGetSel(ChoiceBox), 0);
    });
}

GUI_TEST(EmptyItem, CanBeTheOnlyOneOfACombo)
{
    withItemControls([] {
        guiAppendItem(Combo, nullptr);
        EXPECT_THAT(itemsOf(Combo), ElementsAre(""));
        EXPECT_EQ(guiGetSel(Combo), 0);
    });
}

GUI_TEST(EmptyItem, CanBeTheLastThatIsLeft)
{
    withItemControls([] {
        append(Combo, {"a", ""});
        guiRemoveItem(Combo, 0);
        EXPECT_THAT(itemsOf(Combo), ElementsAre(""));
    });
}
