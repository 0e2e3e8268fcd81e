// Edits: typing, what cannot be typed or seen, and the insertion cursor.

#include <Xm/Text.h>

#include "simple_controls_support.h"

using namespace kite::testing;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr milliseconds kSeveralBlinks{1500};

bool hasCursor(int id)
{
    return resource<Boolean>(controlOf(id), XmNcursorPositionVisible);
}

// Every pixel of its text is of one colour.
bool isBlank(Widget edit)
{
    const Rect rect = rectOf(edit);
    const Rect inside{rect.x + 4, rect.y + 4, rect.width - 8, rect.height - 8};
    return screen::grab(inside).colours().size() == 1;
}

Event changed(int id, int notEmpty)
{
    return toDialog(GUI_EVENT_TEXT_CHANGED, id, notEmpty);
}

}  // namespace

GUI_TEST(Edit, ReportsEveryChangeOfItsText)
{
    runDialog([] { guiEdit(3, 0, 0, 80, 0, 0); },
              [](Shown dialog) {
                  EXPECT_THAT(eventsDuring([&] { dialog.type("abc"); }),
                              ElementsAre(changed(3, 1), changed(3, 1), changed(3, 1)));
                  EXPECT_EQ(textOf(controlOf(3)), "abc");
                  EXPECT_THAT(eventsDuring([&] {
                                  for (int i = 0; i < 3; ++i) dialog.key(XK_BackSpace);
                              }),
                              ElementsAre(changed(3, 1), changed(3, 1), changed(3, 0)));
                  EXPECT_EQ(textOf(controlOf(3)), "");
              });
}

GUI_TEST(Edit, ReportsNothingWhenTheTextStaysAsItIs)
{
    runDialog([] { guiEdit(3, 0, 0, 80, 0, 0); },
              [](Shown dialog) {
                  EXPECT_THAT(eventsDuring([&] { dialog.key(XK_BackSpace); }), IsEmpty());
                  dialog.type("abc");
                  EXPECT_THAT(eventsDuring([&] {
                                  for (const KeySym symbol : {XK_Left, XK_Home, XK_Right, XK_End})
                                      dialog.key(symbol);
                              }),
                              IsEmpty());
              });
}

// The text of the event is there when the handler is called.
GUI_TEST(Edit, HasItsTextWhenTheHandlerIsCalled)
{
    std::vector<std::string> texts;
    recorder.onEvent(GUI_EVENT_TEXT_CHANGED, 3, [&] {
        char text[20];
        EXPECT_GE(guiGetText(3, text, sizeof text), 0);
        texts.emplace_back(text);
    });
    runDialog([] { guiEdit(3, 0, 0, 80, 0, 0); },
              [](Shown dialog) {
                  dialog.type("ab");
                  dialog.key(XK_BackSpace);
                  dialog.key(XK_BackSpace);
              });
    EXPECT_THAT(texts, ElementsAre("a", "ab", "a", ""));
}

GUI_TEST(Edit, HasOneLine)
{
    runDialog([] { guiEdit(3, 0, 0, 80, 0, 0); },
              [](Shown dialog) {
                  dialog.type("a");
                  dialog.key(XK_Return);
                  dialog.key(XK_Down);
                  dialog.type("b");
                  EXPECT_EQ(textOf(controlOf(3)), "ab");
              });
}

GUI_TEST(Edit, ThatIsReadOnlyTakesNoText)
{
    runDialog([] { guiEdit(3, 0, 0, 80, 0, 1); },
              [](Shown dialog) {
                  guiSetText(3, "fixed");
                  EXPECT_THAT(eventsDuring([&] {
                                  dialog.type("abc");
                                  dialog.key(XK_BackSpace);
                                  dialog.key(XK_Delete);
                              }),
                              Each(::testing::Field(&Event::event, GUI_EVENT_KEY)));
                  EXPECT_EQ(textOf(controlOf(3)), "fixed");
              });
}

GUI_TEST(Edit, ShowsWhatIsTyped)
{
    runDialog(
        [] {
            guiEdit(3, 0, 0, 80, 0, 0);
            guiCheck(4, 1, 0, 40, "Check");
        },
        [](Shown dialog) {
            dialog.type("visible");
            dialog.key(XK_Tab);
            EXPECT_TRUE(pumpUntil([] { return !isBlank(controlOf(3)); }));
        });
}

// Neither when it is typed, nor when it is selected or the keyboard is somewhere else.
GUI_TEST(Edit, ThatIsHiddenShowsNothing)
{
    runDialog(
        [] {
            guiEdit(3, 0, 0, 80, 1, 0);
            guiCheck(4, 1, 0, 40, "Check");
        },
        [this](Shown dialog) {
            EXPECT_EQ(eventsDuring([&] { dialog.type("secret"); }).size(), 6U);
            EXPECT_EQ(textOf(controlOf(3)), "secret");
            EXPECT_TRUE(isBlank(controlOf(3))) << "typed";
            EXPECT_TRUE(holdsFor([] { return isBlank(controlOf(3)); }, kSeveralBlinks)) << "cursor";
            robot.doubleClick(controlOf(3), LeftButton, Point{20, 10});
            EXPECT_TRUE(pumpUntil([] {
                XmTextPosition left = 0, right = 0;
                return XmTextGetSelectionPosition(controlOf(3), &left, &right) && left != right;
            }));
            settle();
            EXPECT_TRUE(isBlank(controlOf(3))) << "selected";
            dialog.key(XK_Tab);
            settle();
            EXPECT_TRUE(isBlank(controlOf(3))) << "left";
        });
}

// Not even in grey, and what it looked like before comes back.
GUI_TEST(Edit, ThatIsHiddenShowsNothingWhileItIsDisabled)
{
    runDialog(
        [] {
            guiCheck(4, 0, 0, 40, "Check");
            guiEdit(3, 1, 0, 80, 1, 0);
        },
        [](Shown) {
            ASSERT_TRUE(screen::waitUntilPainted(controlOf(3)));
            const screen::Picture before = screen::grab(controlOf(3));
            guiSetText(3, "secret");
            for (int i = 0; i < 2; ++i) {
                guiEnable(3, 0);
                guiEnable(3, 0);
                settle();
                EXPECT_TRUE(isBlank(controlOf(3)));
                guiEnable(3, 1);
                settle();
                EXPECT_EQ(screen::grab(controlOf(3)), before);
            }
            guiEnable(3, 0);  // and goes with its dialog
        });
}

GUI_TEST(Edit, ThatIsDisabledHasNoCursor)
{
    runDialog(
        [] {
            guiEdit(3, 0, 0, 80, 0, 0);
            guiEdit(4, 1, 0, 80, 0, 0);
        },
        [](Shown dialog) {
            const auto hasCursor = [](int id) {
                return resource<Boolean>(controlOf(id), XmNcursorPositionVisible) == True;
            };
            EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
            EXPECT_TRUE(pumpUntil([&] { return hasCursor(3); }));
            guiEnable(3, 0);
            EXPECT_TRUE(pumpUntil([&] { return hasCursor(4); }));
            EXPECT_FALSE(hasCursor(3));
            guiEnable(3, 1);
            settle();
            EXPECT_FALSE(hasCursor(3));
            guiSetFocus(3);
            EXPECT_TRUE(pumpUntil([&] { return hasCursor(3) && !hasCursor(4); }));
        });
}

GUI_TEST(Edit, ShowsTheCursorWhileItHasTheKeyboard)
{
    runDialog(
        [] {
            guiEdit(1, 0, 0, 80, 0, 0);
            guiEdit(2, 1, 0, 80, 0, 0);
            guiCheck(3, 2, 0, 40, "Check");
        },
        [this](Shown dialog) {
            const auto expectCursors = [](bool first, bool second) {
                settle();
                EXPECT_EQ(hasCursor(1), first);
                EXPECT_EQ(hasCursor(2), second);
            };
            expectCursors(true, false);
            EXPECT_TRUE(pumpUntil([] { return !isBlank(controlOf(1)); }));
            dialog.key(XK_Tab);
            expectCursors(false, true);
            EXPECT_TRUE(pumpUntil([] { return isBlank(controlOf(1)); }));
            dialog.key(XK_Tab);
            expectCursors(false, false);
            robot.click(controlOf(1));
            expectCursors(true, false);
        });
}

// Two edits of a dialog that is shown: only one has ever had a cursor.
GUI_TEST(Edit, ShowsNoCursorBeforeItGetsTheKeyboard)
{
    runDialog(
        [] {
            guiCheck(3, 0, 0, 40, "Check");
            guiEdit(1, 1, 0, 80, 0, 0);
            EXPECT_FALSE(resource<Boolean>(lastControl(), XmNcursorPositionVisible));
        },
        [](Shown) {
            EXPECT_FALSE(hasCursor(1));
            EXPECT_TRUE(isBlank(controlOf(1)));
        });
}

GUI_TEST(Edit, TakesTextOfTheUpperHalf)
{
    runDialog([] { guiEdit(3, 0, 0, 80, 0, 0); },
              [](Shown dialog) {
                  EXPECT_EQ(eventsDuring([&] { dialog.type("\xC3\xA4\xC3\xBF"); }).size(), 2U);
                  EXPECT_EQ(textOf(controlOf(3)), "\xE4\xFF");
              });
}
