// What the host itself does with lists, choices and combo boxes is no event, neither at once nor later.

#include <Xm/List.h>

#include "list_controls_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

enum Id { kList = 1, kExtended, kMultiple, kChoice, kCombo };
constexpr int kAll[] = {kList, kExtended, kMultiple, kChoice, kCombo};

void run(const std::function<void(Shown)>& use)
{
    runDialog({.build =
                   [] {
                       guiList(kList, 0, 3, 0, 60, GUI_BROWSE);
                       guiList(kExtended, 3, 3, 0, 60, GUI_EXTENDED);
                       guiList(kMultiple, 6, 3, 0, 60, GUI_MULTIPLE);
                       guiChoice(kChoice, 9, 0, 60);
                       guiCombo(kCombo, 10, 0, 60);
                   },
               .use = use});
}

// The user goes through all controls, as a combo box reports late what was typed.
void goThroughAll(Shown dialog)
{
    for ([[maybe_unused]] const int id : kAll) dialog.key(XK_Tab);
}

}  // namespace

GUI_TEST(ListQuiet, FillingIsNoEvent)
{
    run([](Shown dialog) {
        EXPECT_THAT(eventsDuring([&] {
                        for (const int id : kAll) {
                            appendItems(id, 9);
                            guiInsertItem(id, 0, "First");
                            guiRemoveItem(id, 0);
                        }
                        goThroughAll(dialog);
                        for (const int id : kAll) guiRemoveAll(id);
                        goThroughAll(dialog);
                    }),
                    IsEmpty());
    });
}

GUI_TEST(ListQuiet, TextOfAComboIsNoEvent)
{
    run([](Shown dialog) {
        EXPECT_THAT(eventsDuring([&] {
                        appendItems(kCombo, 5);
                        for (const char* const text : {"Item 3", "none of them", ""}) {
                            guiSetText(kCombo, text);
                            EXPECT_EQ(textOf(fieldOf(kCombo)), text);
                            goThroughAll(dialog);
                        }
                    }),
                    IsEmpty());
    });
}

// The keyboard is in the combo box meanwhile.
GUI_TEST(ListQuiet, TextOfTheComboWithTheKeyboardIsNoEvent)
{
    run([](Shown dialog) {
        EXPECT_THAT(eventsDuring([&] {
                        guiSetFocus(kCombo);
                        ASSERT_TRUE(pumpUntil([] { return hasFocus(fieldOf(kCombo)); }));
                        guiSetText(kCombo, "text");
                        dialog.key(XK_Tab);
                        EXPECT_FALSE(hasFocus(fieldOf(kCombo)));
                    }),
                    IsEmpty());
    });
}

GUI_TEST(ListQuiet, EnablingAndShowingIsNoEvent)
{
    run([](Shown dialog) {
        EXPECT_THAT(eventsDuring([&] {
                        for (const int id : kAll) appendItems(id, 9);
                        for (const int state : {0, 1})
                            for (const int id : kAll) {
                                guiEnable(id, state);
                                guiSetVisible(id, state);
                                settle();
                            }
                        goThroughAll(dialog);
                    }),
                    IsEmpty());
    });
}

// What the dialog does while it comes up.
GUI_TEST(ListQuiet, BeingShownIsNoEvent)
{
    recorder.clear();
    runDialog({.build =
                   [] {
                       guiList(kList, 0, 3, 0, 60, GUI_BROWSE);
                       guiChoice(kChoice, 4, 0, 60);
                       guiCombo(kCombo, 5, 0, 60);
                   },
               .fill =
                   [] {
                       for (const int id : {kCombo, kList, kChoice}) appendItems(id, 9);
                   }});
    EXPECT_THAT(recorder.events(), ::testing::ElementsAre(toDialog(GUI_EVENT_INIT)));
}
