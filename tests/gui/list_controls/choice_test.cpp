// Choices: opening them and picking an item, by mouse and keyboard.

#include "list_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int kChoice = 5;

void runChoice(const std::function<void(Shown)>& use, int items = 20)
{
    runDialog({.build =
                   [] {
                       guiChoice(kChoice, 0, 0, 80);
                       guiLabel(-1, 9, 0, 80, "Room for the list");
                   },
               .fill = [&] { appendItems(kChoice, items); },
               .use = use});
}

void openByMouse()
{
    EXPECT_THAT(eventsDuring([] {
                    clickArrow(kChoice);
                    ASSERT_TRUE(waitUntilOpen(kChoice));
                }),
                IsEmpty());
}

void openByKey(Shown dialog, KeySym symbol = XK_Down)
{
    EXPECT_THAT(eventsDuring([&] {
                    dialog.key(symbol, Control);
                    ASSERT_TRUE(waitUntilOpen(kChoice));
                }),
                IsEmpty());
}

std::string text()
{
    return textOf(fieldOf(kChoice));
}

}  // namespace

GUI_TEST(Choice, ItemIsPickedByMouse)
{
    runChoice([](Shown) {
        EXPECT_EQ(text(), "Item 0");
        for (const int item : {3, 0, 5, 5}) {
            SCOPED_TRACE(item);
            openByMouse();
            EXPECT_THAT(eventsDuring([&] {
                            clickItem(kChoice, item);
                            EXPECT_TRUE(waitUntilClosed(kChoice));
                        }),
                        ElementsAre(picked(kChoice, item)));
            EXPECT_EQ(text(), "Item " + std::to_string(item));
        }
    });
}

// Pressed on the arrow, released on the item.
GUI_TEST(Choice, ItemIsPickedByDragging)
{
    runChoice([this](Shown) {
        openByMouse();
        Widget const list = listOf(kChoice);
        EXPECT_THAT(eventsDuring([&] {
                        robot.moveTo(list, middleOfItem(list, 1));
                        robot.press();
                        robot.moveTo(list, middleOfItem(list, 4));
                        robot.release();
                        EXPECT_TRUE(waitUntilClosed(kChoice));
                    }),
                    ElementsAre(picked(kChoice, 4)));
        EXPECT_EQ(text(), "Item 4");
    });
}

GUI_TEST(Choice, ItemIsPickedByKeys)
{
    runChoice([this](Shown dialog) {
        for (const KeySym opener : {XK_Down, XK_Up}) {
            SCOPED_TRACE(XKeysymToString(opener));
            const int before = guiGetPos(kChoice);
            guiEnable(kChoice, 1);  // events pass again
            openByKey(dialog, opener);
            const auto events = eventsDuring([this] {
                robot.keyHandled(XK_Down);
                robot.keyHandled(XK_Down);
                robot.keyHandled(XK_Return);
                EXPECT_TRUE(waitUntilClosed(kChoice));
            });
            ASSERT_FALSE(events.empty());
            EXPECT_EQ(events.back(), picked(kChoice, before + 2));
            EXPECT_EQ(text(), "Item " + std::to_string(before + 2));
        }
    });
}

GUI_TEST(Choice, ItemIsPickedByArrowsWithoutOpening)
{
    runChoice([](Shown dialog) {
        const auto expectKey = [&](KeySym symbol, int item) {
            EXPECT_THAT(eventsDuring([&] { dialog.key(symbol); }),
                        ElementsAre(picked(kChoice, item)));
            EXPECT_EQ(text(), "Item " + std::to_string(item));
            EXPECT_FALSE(isOpen(kChoice));
        };
        expectKey(XK_Down, 1);
        expectKey(XK_Down, 2);
        expectKey(XK_Up, 1);
        expectKey(XK_Up, 0);
    });
}

// The position of the event is the one that the operations know.
GUI_TEST(Choice, PositionOfTheEventIsTheSelectedPosition)
{
    runChoice([this](Shown dialog) {
        std::vector<int> positions;
        recorder.onEvent(GUI_EVENT_VALUE, kChoice, [&](const Event& event) {
            EXPECT_EQ(event.a, resource<int>(controlOf(kChoice), XmNselectedPosition));
            positions.push_back(event.a);
        });
        dialog.key(XK_Down);
        dialog.key(XK_Down);
        EXPECT_THAT(positions, ElementsAre(1, 2));
        char item[20];
        EXPECT_EQ(guiGetItem(kChoice, positions.back(), item, sizeof item), 6);
        EXPECT_EQ(item, text());
    });
}

GUI_TEST(Choice, IsLeftAsItIsWithoutAPick)
{
    runChoice([this](Shown dialog) {
        openByMouse();
        EXPECT_THAT(eventsDuring([this] {
                        robot.keyHandled(XK_Escape);
                        EXPECT_TRUE(waitUntilClosed(kChoice));
                    }),
                    IsEmpty());
        openByKey(dialog);
        EXPECT_THAT(eventsDuring([this, dialog] {
                        robot.moveTo(rectOf(dialog.widget()).corner() + Point{3, 3});
                        robot.click();
                        EXPECT_TRUE(waitUntilClosed(kChoice));
                    }),
                    IsEmpty());
        EXPECT_EQ(text(), "Item 0");
        EXPECT_TRUE(hasFocus(fieldOf(kChoice)));
    });
}

GUI_TEST(Choice, TakesNoText)
{
    runChoice([](Shown dialog) {
        EXPECT_THAT(eventsDuring([&] { dialog.type("abc"); }), IsEmpty());
        EXPECT_EQ(text(), "Item 0");
        EXPECT_FALSE(resource<Boolean>(fieldOf(kChoice), XmNcursorPositionVisible));
    });
}

// Items that are out of view are reached with the bar of the list; that is no event.
GUI_TEST(Choice, ListScrolls)
{
    runChoice([this](Shown) {
        openByMouse();
        EXPECT_THAT(eventsDuring([this] {
                        robot.wheel(listOf(kChoice), 2);
                        EXPECT_TRUE(pumpUntil([] { return topOf(kChoice) > 0; }));
                    }),
                    IsEmpty());
        const int item = topOf(kChoice) + 2;
        EXPECT_THAT(eventsDuring([&] {
                        clickItem(kChoice, item);
                        EXPECT_TRUE(waitUntilClosed(kChoice));
                    }),
                    ElementsAre(picked(kChoice, item)));
    });
}

GUI_TEST(Choice, ThatIsEmptyPicksNothing)
{
    runChoice(
        [this](Shown dialog) {
            EXPECT_THAT(eventsDuring([&] {
                            dialog.key(XK_Down);
                            dialog.key(XK_Up);
                            clickArrow(kChoice);
                            settle();
                            if (isOpen(kChoice)) {
                                robot.click(listOf(kChoice));
                                robot.keyHandled(XK_Escape);
                                EXPECT_TRUE(waitUntilClosed(kChoice));
                            }
                        }),
                        IsEmpty());
            EXPECT_EQ(text(), "");
        },
        0);
}

GUI_TEST(Choice, ThatIsDisabledDoesNotOpen)
{
    runChoice([](Shown) {
        guiEnable(kChoice, 0);
        EXPECT_THAT(eventsDuring([] {
                        clickArrow(kChoice);
                        EXPECT_TRUE(holdsFor([] { return !isOpen(kChoice); }, milliseconds{200}));
                    }),
                    IsEmpty());
        guiEnable(kChoice, 1);
        openByMouse();
    });
}
