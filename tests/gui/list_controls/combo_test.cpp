// Combo boxes: typing, and picking an item.

#include "list_controls_support.h"

using namespace kite::testing;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int kCombo = 5;
constexpr int kCheck = 6;

void runCombo(const std::function<void(Shown)>& use, int items = 5)
{
    runDialog({.build =
                   [] {
                       guiCombo(kCombo, 0, 0, 80);
                       guiCheck(kCheck, 1, 0, 80, "Check");
                       guiLabel(-1, 9, 0, 80, "Room for the list");
                   },
               .fill = [&] { appendItems(kCombo, items); },
               .use = use});
}

void open()
{
    EXPECT_THAT(eventsDuring([] {
                    clickArrow(kCombo);
                    ASSERT_TRUE(waitUntilOpen(kCombo));
                }),
                IsEmpty());
}

std::string text()
{
    return textOf(fieldOf(kCombo));
}

bool hasCursor()
{
    return resource<Boolean>(fieldOf(kCombo), XmNcursorPositionVisible);
}

// The text changes with a pick, and the pick comes last.
void expectPick(const std::vector<Event>& events, int item)
{
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.back(), picked(kCombo, item));
    EXPECT_THAT(std::vector<Event>(events.begin(), events.end() - 1), Each(typed(kCombo)));
    EXPECT_EQ(text(), "Item " + std::to_string(item));
}

}  // namespace

// Unlike that of an edit the event does not say whether there is text.
GUI_TEST(Combo, ReportsEveryChangeOfItsText)
{
    runCombo(
        [](Shown dialog) {
            EXPECT_THAT(eventsDuring([&] { dialog.type("abc"); }),
                        ElementsAre(typed(kCombo), typed(kCombo), typed(kCombo)));
            EXPECT_EQ(text(), "abc");
            EXPECT_THAT(eventsDuring([&] {
                            for (int i = 0; i < 3; ++i) dialog.key(XK_BackSpace);
                        }),
                        ElementsAre(typed(kCombo), typed(kCombo), typed(kCombo)));
            EXPECT_EQ(text(), "");
            EXPECT_THAT(eventsDuring([&] { dialog.key(XK_BackSpace); }), IsEmpty());
        },
        0);
}

GUI_TEST(Combo, HasItsTextWhenTheHandlerIsCalled)
{
    std::vector<std::string> texts;
    recorder.onEvent(GUI_EVENT_TEXT_CHANGED, kCombo, [&] { texts.push_back(text()); });
    runCombo(
        [](Shown dialog) {
            dialog.type("ab");
            dialog.key(XK_BackSpace);
        },
        0);
    EXPECT_THAT(texts, ElementsAre("a", "ab", "a"));
}

GUI_TEST(Combo, ItemIsPickedByMouse)
{
    runCombo([](Shown) {
        for (const int item : {3, 0, 4}) {
            SCOPED_TRACE(item);
            open();
            expectPick(eventsDuring([&] {
                           clickItem(kCombo, item);
                           EXPECT_TRUE(waitUntilClosed(kCombo));
                       }),
                       item);
        }
    });
}

GUI_TEST(Combo, ItemIsPickedByKeys)
{
    runCombo([this](Shown dialog) {
        expectPick(eventsDuring([&] { dialog.key(XK_Down); }), 1);
        expectPick(eventsDuring([&] { dialog.key(XK_Down); }), 2);
        expectPick(eventsDuring([&] { dialog.key(XK_Up); }), 1);
        EXPECT_FALSE(isOpen(kCombo));

        dialog.key(XK_Down, Control);
        ASSERT_TRUE(waitUntilOpen(kCombo));
        const auto events = eventsDuring([this] {
            robot.keyHandled(XK_Down);
            robot.keyHandled(XK_Down);
            robot.keyHandled(XK_Return);
            EXPECT_TRUE(waitUntilClosed(kCombo));
        });
        ASSERT_FALSE(events.empty());
        EXPECT_EQ(events.back(), picked(kCombo, 3));
        EXPECT_EQ(text(), "Item 3");
    });
}

GUI_TEST(Combo, PickTakesThePlaceOfWhatWasTyped)
{
    runCombo([](Shown dialog) {
        dialog.type("xyz");
        EXPECT_NE(text(), "Item 0");
        open();
        expectPick(eventsDuring([&] {
                       clickItem(kCombo, 2);
                       EXPECT_TRUE(waitUntilClosed(kCombo));
                   }),
                   2);
    });
}

GUI_TEST(Combo, TypingGoesOnWhenItWasClosedWithoutAPick)
{
    runCombo(
        [this](Shown dialog) {
            dialog.type("a");
            open();
            robot.keyHandled(XK_Escape);
            EXPECT_TRUE(waitUntilClosed(kCombo));
            dialog.type("b");
            EXPECT_EQ(text(), "ab");
        },
        0);
}

// What has been typed counts as picked when the box is left, with the position that the box has then.
GUI_TEST(Combo, ReportsTypedTextWhenItIsLeft)
{
    for (const int items : {0, 5}) {
        SCOPED_TRACE(items);
        runCombo(
            [](Shown dialog) {
                dialog.type("xyz");
                const auto events =
                    only(GUI_EVENT_VALUE, eventsDuring([&] { dialog.key(XK_Tab); }));
                EXPECT_THAT(events,
                            ElementsAre(picked(
                                kCombo, resource<int>(controlOf(kCombo), XmNselectedPosition))));
            },
            items);
    }
}

GUI_TEST(Combo, ReportsNothingWhenItIsLeftAsItWas)
{
    runCombo([](Shown dialog) {
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Tab); }), IsEmpty());
        dialog.key(XK_Tab);
        dialog.key(XK_Down);  // a pick is no text that was typed
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Tab); }), IsEmpty());
    });
}

GUI_TEST(Combo, ShowsTheCursorWhileItHasTheKeyboard)
{
    runCombo([this](Shown dialog) {
        EXPECT_TRUE(hasCursor());
        dialog.key(XK_Tab);
        EXPECT_FALSE(hasCursor());
        dialog.key(XK_Tab);
        EXPECT_TRUE(hasCursor());
        robot.click(controlOf(kCheck));
        EXPECT_FALSE(hasCursor());
        robot.click(fieldOf(kCombo));
        EXPECT_TRUE(hasCursor());
    });
}

GUI_TEST(Combo, ThatIsDisabledTakesNothing)
{
    runCombo([this](Shown dialog) {
        guiEnable(kCombo, 0);
        settle();
        EXPECT_FALSE(hasCursor());
        EXPECT_THAT(eventsDuring([&] {
                        robot.click(fieldOf(kCombo));
                        dialog.type("x");
                        clickArrow(kCombo);
                        EXPECT_TRUE(holdsFor([] { return !isOpen(kCombo); }, milliseconds{200}));
                    }),
                    IsEmpty());
        EXPECT_EQ(text(), "Item 0");
    });
}
