// Lists and the keyboard: what the arrows, the space bar and the keys held with them select, in each mode.

#include "list_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int kList = 5;

void runList(int mode, const std::function<void(Shown)>& use)
{
    runDialog({.build = [&] { guiList(kList, 0, 6, 0, 80, mode); },
               .fill = [] { appendItems(kList, 5); },
               .use =
                   [&](Shown dialog) {
                       ASSERT_TRUE(hasFocus(listOf(kList)));
                       use(dialog);
                   }});
}

void expectKey(Shown dialog, KeySym symbol, unsigned modifiers, int index,
               const std::vector<int>& expected)
{
    SCOPED_TRACE(XKeysymToString(symbol));
    EXPECT_THAT(eventsDuring([&] { dialog.key(symbol, modifiers); }),
                ElementsAre(selected(kList, index)));
    EXPECT_EQ(selectedItems(kList), expected);
    EXPECT_EQ(cursorOf(kList), index);
}

}  // namespace

GUI_TEST(ListKeyboard, SelectsTheItemOfTheCursorInBrowseMode)
{
    runList(GUI_BROWSE, [](Shown dialog) {
        EXPECT_THAT(selectedItems(kList), ElementsAre(0));
        expectKey(dialog, XK_Down, NoModifier, 1, {1});
        expectKey(dialog, XK_KP_Down, NoModifier, 2, {2});
        expectKey(dialog, XK_Up, NoModifier, 1, {1});
        expectKey(dialog, XK_End, Control, 4, {4});
        expectKey(dialog, XK_Home, Control, 0, {0});
    });
}

GUI_TEST(ListKeyboard, SelectsRangesInExtendedMode)
{
    runList(GUI_EXTENDED, [](Shown dialog) {
        expectKey(dialog, XK_Down, NoModifier, 1, {1});
        expectKey(dialog, XK_Down, Shift, 2, {1, 2});
        expectKey(dialog, XK_Down, Shift, 3, {1, 2, 3});
        expectKey(dialog, XK_Up, NoModifier, 2, {2});
    });
}

// The cursor goes alone there.
GUI_TEST(ListKeyboard, TogglesTheItemOfTheCursorInMultipleMode)
{
    runList(GUI_MULTIPLE, [](Shown dialog) {
        const auto go = [&](KeySym symbol) {
            EXPECT_THAT(eventsDuring([&] { dialog.key(symbol); }), IsEmpty());
        };
        expectKey(dialog, XK_space, NoModifier, 0, {0});
        go(XK_Down);
        EXPECT_EQ(cursorOf(kList), 1);
        go(XK_Down);
        expectKey(dialog, XK_space, NoModifier, 2, {0, 2});
        go(XK_Up);
        go(XK_Up);
        expectKey(dialog, XK_space, NoModifier, 0, {2});
        go(XK_Down);
        go(XK_Down);
        expectKey(dialog, XK_space, NoModifier, 2, {});
    });
}

GUI_TEST(ListKeyboard, CanDeselectTheOnlyItemInMultipleModeAlone)
{
    for (const int mode : {GUI_BROWSE, GUI_EXTENDED}) {
        SCOPED_TRACE(mode);
        runList(mode, [](Shown dialog) {
            expectKey(dialog, XK_Down, NoModifier, 1, {1});
            for (int times = 0; times < 2; ++times) {
                const auto events = eventsDuring([&] { dialog.key(XK_space, Control); });
                EXPECT_THAT(events, ::testing::Each(selected(kList, 1)));
                EXPECT_THAT(selectedItems(kList), ElementsAre(1));
            }
        });
    }
}

// Nothing to go to: nothing to report.
GUI_TEST(ListKeyboard, IsNothingInAnEmptyList)
{
    for (const int mode : {GUI_BROWSE, GUI_EXTENDED, GUI_MULTIPLE}) {
        SCOPED_TRACE(mode);
        runDialog({.build = [&] { guiList(kList, 0, 6, 0, 80, mode); },
                   .use =
                       [](Shown dialog) {
                           ASSERT_TRUE(hasFocus(listOf(kList)));
                           EXPECT_THAT(eventsDuring([&] {
                                           for (const KeySym symbol :
                                                {XK_Down, XK_Up, XK_Page_Down, XK_space, XK_Return})
                                               dialog.key(symbol);
                                       }),
                                       IsEmpty());
                       }});
    }
}
