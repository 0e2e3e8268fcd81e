// Where the keyboard is: at first, along the Tab key, and what guiGetFocus says of it.

#include "other_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

void buildRows()
{
    guiSpin(kSpin, 0, 0, 60);
    guiProgress(kProgress, 2, 2, 0, 60);
    guiSlider(kSlider, 4, 2, 0, 60);
    guiTree(kTree, 7, 3, 0, 60);
    guiText(kText, 11, 3, 0, 60, 0);
}

void fillRows()
{
    fillItems(kTree, 3);
}

int keyboardAt()
{
    for (const int id : {kText, kTree, kSpin, kSlider, kProgress})
        if (hasKeyboard(id)) return id;
    return 0;
}

}  // namespace

GUI_TEST(OtherControlFocus, IsFirstOnEachKindButProgressBars)
{
    for (const KindOfControl& kind : allKinds()) {
        SCOPED_TRACE(kind.call);
        runFilled(
            [&] {
                kind.make(kind.kind);
                guiCheck(99, 20, 0, 40, "Check");
            },
            [&] {
                if (kind.kind == kTree) fillItems(kTree, 1);
            },
            [&](Shown dialog) {
                EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
                if (kind.kind == kProgress)
                    EXPECT_TRUE(pumpUntil([] { return hasFocus(99); }));
                else
                    EXPECT_TRUE(waitForKeyboard(kind.kind));
            });
    }

    runDialog(
        [] {
            guiSpin(1, 0, 0, 40);
            XtSetSensitive(lastControl(), False);
            guiSlider(2, 1, 1, 0, 40);
        },
        [](Shown) { EXPECT_TRUE(waitForKeyboard(2)); });
}

// There is nothing in it that the keyboard could work on.
GUI_TEST(OtherControlFocus, PassesOverAnEmptyTree)
{
    runDialog(
        [] {
            guiTree(kTree, 0, 3, 0, 60);
            guiCheck(99, 4, 0, 40, "Check");
            guiSlider(kSlider, 5, 2, 0, 60);
        },
        [](Shown dialog) {
            EXPECT_TRUE(pumpUntil([] { return hasFocus(99); })) << "at first";
            dialog.key(XK_Tab);
            EXPECT_TRUE(waitForKeyboard(kSlider));
            dialog.key(XK_Tab);
            EXPECT_TRUE(pumpUntil([] { return hasFocus(99); }));
            fillItems(kTree, 1);
            dialog.key(XK_Tab, Shift);
            EXPECT_TRUE(waitForKeyboard(kTree)) << "not empty any more";
        });
}

// In the order in which they were made. In a multi-line text Tab is a character; Control and Tab leave it.
GUI_TEST(OtherControlFocus, GoesWithTabInTheOrderOfCreation)
{
    runFilled(buildRows, fillRows, [](Shown dialog) {
        ASSERT_TRUE(waitForKeyboard(kSpin));
        std::vector<int> along;
        for (int i = 0; i < 4; ++i) {
            dialog.key(XK_Tab, keyboardAt() == kText ? unsigned{Control} : unsigned{NoModifier});
            along.push_back(keyboardAt());
        }
        EXPECT_THAT(along, ElementsAre(kSlider, kTree, kText, kSpin));
        along.clear();
        for (int i = 0; i < 4; ++i) {
            dialog.key(XK_Tab, keyboardAt() == kText ? Control | Shift : unsigned{Shift});
            along.push_back(keyboardAt());
        }
        EXPECT_THAT(along, ElementsAre(kText, kTree, kSlider, kSpin));
    });
}

GUI_TEST(OtherControlFocus, TabIsACharacterInATextThatCanBeChanged)
{
    runDialog(
        [] {
            guiText(1, 0, 3, 0, 60, 0);
            guiText(2, 3, 3, 0, 60, 1);
            guiCheck(3, 6, 0, 40, "Check");
        },
        [this](Shown dialog) {
            ASSERT_TRUE(waitForKeyboard(1));
            dialog.key(XK_Tab);
            EXPECT_TRUE(hasKeyboard(1));
            EXPECT_EQ(textOf(innerOf(1)), "\t");
            EXPECT_EQ(recorder.count(cursorAt(1, 0, 1)), 1) << "one column";
            dialog.key(XK_Tab, Control);
            EXPECT_TRUE(waitForKeyboard(2));
            dialog.key(XK_Tab);
            EXPECT_TRUE(pumpUntil([] { return hasFocus(3); })) << "from one that cannot be changed";
        });
}

// Of a tree it cannot be told, nor of a text, whose user data is none of a control.
GUI_TEST(OtherControlFocus, IsToldOfNoInnerWidget)
{
    runFilled(buildRows, fillRows, [](Shown) {
        for (const int id : {kTree, kText}) {
            guiSetFocus(id);
            ASSERT_TRUE(waitForKeyboard(id));
            EXPECT_EQ(guiGetFocus(), -1) << id;
        }
    });
}

GUI_TEST(OtherControlFocus, IsMovedByTheHostAndByClicks)
{
    runFilled(
        buildRows,
        [] {
            fillRows();
            guiSetFocus(kTree);
        },
        [](Shown) {
            EXPECT_TRUE(waitForKeyboard(kTree)) << "named when the dialog was initialised";
            for (const int id : {kText, kSlider, kSpin, kTree}) {
                guiSetFocus(id);
                EXPECT_TRUE(waitForKeyboard(id)) << id;
            }
        });

    runFilled(buildRows, fillRows, [this](Shown) {
        for (const int id : {kText, kSlider, kTree, kSpin}) {
            robot.click(innerOf(id), LeftButton, id == kTree ? middleOfItem(id, 2) : Point{6, 6});
            EXPECT_TRUE(waitForKeyboard(id)) << id;
        }
    });
}
