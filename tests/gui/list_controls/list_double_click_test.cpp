// A double click on an item of a list, and Return, which is none.

#include <algorithm>

#include "list_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int kList = 5;
constexpr int kButton = 6;

void runList(int mode, const std::function<void(Shown)>& use)
{
    runDialog({.build = [&] { guiList(kList, 0, 6, 0, 80, mode); },
               .fill = [] { appendItems(kList, 5); },
               .use = use});
}

}  // namespace

GUI_TEST(ListDoubleClick, IsReportedAfterTheSelection)
{
    for (const int mode : {GUI_BROWSE, GUI_EXTENDED}) {
        SCOPED_TRACE(mode);
        runList(mode, [](Shown) {
            for (const int index : {3, 0, 0})
                EXPECT_THAT(eventsDuring([&] { doubleClickItem(kList, index); }),
                            ElementsAre(selected(kList, index), selected(kList, index, 1)));
            EXPECT_THAT(selectedItems(kList), ElementsAre(0));
        });
    }
}

GUI_TEST(ListDoubleClick, IsReportedInMultipleMode)
{
    runList(GUI_MULTIPLE, [](Shown) {
        const auto events = eventsDuring([] { doubleClickItem(kList, 3); });
        ASSERT_FALSE(events.empty());
        EXPECT_EQ(events.front(), selected(kList, 3));
        EXPECT_EQ(events.back(), selected(kList, 3, 1));
        EXPECT_EQ(std::count(events.begin(), events.end(), selected(kList, 3, 1)), 1);
    });
}

// Two clicks that are far apart in time or place are two clicks.
GUI_TEST(ListDoubleClick, IsNotTwoClicks)
{
    runList(GUI_BROWSE, [](Shown) {
        EXPECT_THAT(eventsDuring([] {
                        clickItem(kList, 2);
                        clickItem(kList, 2);
                    }),
                    ElementsAre(selected(kList, 2), selected(kList, 2)));
    });
}

GUI_TEST(ListDoubleClick, IsNotReturn)
{
    for (const int mode : {GUI_BROWSE, GUI_EXTENDED, GUI_MULTIPLE}) {
        SCOPED_TRACE(mode);
        runList(mode, [](Shown dialog) {
            clickItem(kList, 2);
            ASSERT_TRUE(hasFocus(listOf(kList)));
            EXPECT_THAT(eventsDuring([&] {
                            dialog.key(XK_Return);
                            dialog.key(XK_KP_Enter);
                        }),
                        IsEmpty());
            EXPECT_EQ(guiIdStatus(kList), 1) << "the dialog runs on";
        });
    }
}

// Where the dialog has a default button, Return in a list presses it.
GUI_TEST(ListDoubleClick, PressesTheDefaultButtonAsReturnDoes)
{
    runDialog({.build =
                   [] {
                       guiList(kList, 0, 6, 0, 80, GUI_BROWSE);
                       guiButton(kButton, 7, 0, 40, "OK", 1);
                   },
               .fill = [] { appendItems(kList, 5); },
               .use =
                   [](Shown dialog) {
                       ASSERT_TRUE(hasFocus(listOf(kList)));
                       EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Return); }),
                                   ElementsAre(toDialog(GUI_EVENT_COMMAND, kButton)));
                       (void)eventsDuring([] { doubleClickItem(kList, 1); });
                   }});
}
