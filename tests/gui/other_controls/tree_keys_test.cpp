// Trees by keyboard.

#include <Xm/Container.h>

#include "other_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

enum Id { kBox = 1, kCheck };
constexpr int kItems = 40;

std::vector<Event> selections(const std::function<void()>& action)
{
    return only(GUI_EVENT_SELECT, eventsDuring(action));
}

// The one with the keyboard.
int focusedKey()
{
    Widget const item = XmGetFocusWidget(newestBoard());
    if (!item || XtParent(item) != innerOf(kBox)) return 0;
    return static_cast<int>(
        reinterpret_cast<std::intptr_t>(resource<XtPointer>(item, XmNuserData)));
}

bool isInView(int key)
{
    return rectOf(viewOf(kBox)).contains(rectOf(itemOf(kBox, key)).centre());
}

void runTree(const std::function<void()>& fill, const std::function<void(Shown)>& use)
{
    runFilled(
        [] {
            guiTree(kBox, 0, 6, 0, 100);
            guiCheck(kCheck, 7, 0, 40, "Check");
        },
        fill,
        [&](Shown dialog) {
            ASSERT_TRUE(waitForKeyboard(kBox));
            use(dialog);
        });
}

}  // namespace

// Down the whole tree and up again: what has the keyboard is seen, and the space bar selects it.
GUI_TEST(TreeKeys, ArrowsGoOnBeyondWhatIsSeen)
{
    runTree([] { fillItems(kBox, kItems); },
            [](Shown dialog) {
                ASSERT_FALSE(isInView(kItems));
                ASSERT_EQ(focusedKey(), 1);
                for (int key = 2; key <= kItems; ++key) {
                    dialog.key(XK_Down);
                    ASSERT_EQ(focusedKey(), key);
                    ASSERT_TRUE(isInView(key)) << key;
                }
                EXPECT_GT(guiGetTop(kBox), 0);
                dialog.key(XK_Down);
                EXPECT_EQ(focusedKey(), kItems) << "the end";
                for (int key = kItems - 1; key >= 1; --key) {
                    dialog.key(XK_Up);
                    ASSERT_EQ(focusedKey(), key);
                    ASSERT_TRUE(isInView(key)) << key;
                }
                EXPECT_EQ(guiGetTop(kBox), 0);
            });
}

// Select as they go. Return is a double click.
GUI_TEST(TreeKeys, SelectItems)
{
    runTree(
        [] { fillItems(kBox, 5); },
        [](Shown dialog) {
            EXPECT_THAT(selections([&] { dialog.key(XK_space); }), ElementsAre(selected(kBox, 0)));
            EXPECT_THAT(selections([&] { dialog.key(XK_Down); }), ElementsAre(selected(kBox, 1)));
            EXPECT_EQ(guiGetPos(kBox), 3);
            guiEnable(kBox, 1);  // events pass again
            EXPECT_THAT(selections([&] { dialog.key(XK_Return); }),
                        ElementsAre(selected(kBox, 1, 1)));
            EXPECT_THAT(selections([&] { dialog.key(XK_Up); }), ElementsAre(selected(kBox, 0)));
        });
}

GUI_TEST(TreeKeys, ControlWithArrowsExpandsAndCollapses)
{
    runTree(
        [] {
            guiAddTree(kBox, 0, 1, "Top");
            guiAddTree(kBox, 1, 2, "Below");
        },
        [](Shown dialog) {
            const auto isExpanded = [] {
                return resource<unsigned char>(itemOf(kBox, 1), XmNoutlineState) == XmEXPANDED;
            };
            ASSERT_FALSE(isExpanded());
            EXPECT_THAT(selections([&] { dialog.key(XK_Right, Control); }), IsEmpty());
            EXPECT_TRUE(isExpanded());
            dialog.key(XK_Right, Control);
            EXPECT_TRUE(isExpanded()) << "already";
            dialog.key(XK_Left, Control);
            EXPECT_FALSE(isExpanded());
        });
}

GUI_TEST(TreeKeys, OfPagesAndEndsMoveTheView)
{
    runTree([] { fillItems(kBox, kItems); },
            [](Shown dialog) {
                dialog.key(XK_Next);
                EXPECT_GT(guiGetTop(kBox), 0);
                dialog.key(XK_End, Control);
                EXPECT_TRUE(isInView(kItems));
                dialog.key(XK_Prior);
                EXPECT_FALSE(isInView(kItems));
                dialog.key(XK_Home, Control);
                EXPECT_EQ(guiGetTop(kBox), 0);
            });
}

// With the keyboard in the tree Escape presses the cancel button, as it does elsewhere.
GUI_TEST(TreeKeys, EscapePressesTheCancelButton)
{
    runFilled(
        [] {
            guiTree(kBox, 0, 6, 0, 100);
            guiButton(0, 7, 0, 40, "Cancel", 0);
        },
        [] { fillItems(kBox, 3); },
        [](Shown dialog) {
            ASSERT_TRUE(waitForKeyboard(kBox));
            EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Escape); }),
                        ElementsAre(toDialog(GUI_EVENT_COMMAND, 0)));
        });
}
