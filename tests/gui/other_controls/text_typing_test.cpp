// Typing in multi-line texts, and what the host hears of it.

#include <Xm/Text.h>

#include <clocale>

#include "other_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

std::vector<Event> cursorEvents(const std::function<void()>& action)
{
    return only(GUI_EVENT_CURSOR, eventsDuring(action));
}

void runText(const std::function<void()>& fill, const std::function<void(Shown)>& use)
{
    runFilled([] { guiText(3, 0, 5, 0, 100, 0); }, fill, use);
}

void runEmpty(const std::function<void(Shown)>& use)
{
    runText([] {}, use);
}

}  // namespace

GUI_TEST(MultiLineText, ReportsTheInsertionPointOfEachChange)
{
    runEmpty([](Shown dialog) {
        EXPECT_THAT(cursorEvents([&] { dialog.type("ab"); }),
                    ElementsAre(cursorAt(3, 0, 1), cursorAt(3, 0, 2)));
        EXPECT_THAT(cursorEvents([&] { dialog.key(XK_Return); }), ElementsAre(cursorAt(3, 1, 0)));
        EXPECT_THAT(cursorEvents([&] { dialog.type("c"); }), ElementsAre(cursorAt(3, 1, 1)));
        EXPECT_EQ(textOf(innerOf(3)), "ab\nc");
        dialog.key(XK_Up);
        dialog.key(XK_Home);
        EXPECT_THAT(cursorEvents([&] { dialog.key(XK_Delete); }), ElementsAre(cursorAt(3, 0, 0)))
            << "the first character of more";
        EXPECT_THAT(cursorEvents([&] { dialog.key(XK_Return); }), ElementsAre(cursorAt(3, 1, 0)))
            << "an empty line above";
        EXPECT_THAT(cursorEvents([&] { dialog.key(XK_BackSpace); }),
                    ElementsAre(cursorAt(3, 0, 0)));
        EXPECT_EQ(textOf(innerOf(3)), "b\nc");
    });

    runText([] { fillLines(3, 3); },
            [](Shown dialog) {
                EXPECT_THAT(cursorEvents([&] {
                                for (const KeySym symbol : {XK_Down, XK_Right, XK_End, XK_Home,
                                                            XK_Up, XK_Left, XK_Next, XK_Prior})
                                    dialog.key(symbol);
                            }),
                            IsEmpty());
            });
}

// There is no line any more.
GUI_TEST(MultiLineText, ThatBecomesEmptyReportsNoLine)
{
    runEmpty([this](Shown dialog) {
        dialog.type("ab");
        EXPECT_THAT(cursorEvents([&] {
                        dialog.key(XK_BackSpace);
                        dialog.key(XK_BackSpace);
                    }),
                    ElementsAre(cursorAt(3, 0, 1), cursorAt(3, -1, 0)));
        EXPECT_THAT(cursorEvents([&] { dialog.key(XK_BackSpace); }), IsEmpty());
        dialog.type("a\n");
        EXPECT_THAT(cursorEvents([&] {
                        robot.click(innerOf(3));
                        dialog.key(XK_slash, Control);
                        dialog.key(XK_Delete);
                    }),
                    ElementsAre(cursorAt(3, -1, 0)))
            << "all at once";
        EXPECT_EQ(textOf(innerOf(3)), "");
    });
}

// The host's own changes are no news to it, before the dialog is seen and later.
GUI_TEST(MultiLineText, ReportsNothingOfTheHostsChanges)
{
    const auto change = [] {
        guiSetText(3, "one\ntwo");
        guiAppendLine(3, "three");
        guiInsertText(3, "x");
        guiSetPos(3, 0);
        guiSetText(3, "");
    };
    runText(change, [&](Shown dialog) {
        EXPECT_THAT(only(GUI_EVENT_CURSOR, recorder.events()), IsEmpty());
        EXPECT_THAT(cursorEvents(change), IsEmpty());
        EXPECT_THAT(cursorEvents([&] { dialog.type("a"); }), ElementsAre(cursorAt(3, 0, 1)));
    });
}

// What the host reads in its handler is the text of the event.
GUI_TEST(MultiLineText, HasItsTextWhenTheHandlerIsCalled)
{
    std::vector<std::string> lines;
    recorder.onEvent(GUI_EVENT_CURSOR, 3, [&](const Event& event) {
        char line[20] = "";
        guiGetLine(3, event.a, line, sizeof line);
        lines.emplace_back(line);
    });
    runEmpty([](Shown dialog) {
        dialog.type("ab\nc");
        dialog.key(XK_BackSpace);
    });
    EXPECT_THAT(lines, ElementsAre("a", "ab", "", "c", ""));
}

GUI_TEST(MultiLineText, TypedOverASelectionReportsTheEnd)
{
    runText([] { guiSetText(3, "one\ntwo\nthree"); },
            [this](Shown dialog) {
                Widget const text = innerOf(3);
                robot.doubleClick(text, LeftButton, Point{10, 8});
                ASSERT_TRUE(pumpUntil([&] {
                    XmTextPosition left = 0, right = 0;
                    return XmTextGetSelectionPosition(text, &left, &right) && right - left == 3;
                }));
                // The selection goes first: that is a change of its own.
                EXPECT_THAT(cursorEvents([&] { dialog.type("x"); }),
                            ::testing::Contains(cursorAt(3, 0, 1)));
                EXPECT_EQ(textOf(text), "x\ntwo\nthree");
            });
}

GUI_TEST(MultiLineText, ThatIsReadOnlyOrDisabledTakesNoText)
{
    runFilled([] { guiText(3, 0, 5, 0, 100, 1); }, [] { guiSetText(3, "fixed"); },
              [](Shown dialog) {
                  ASSERT_TRUE(waitForKeyboard(3));
                  EXPECT_THAT(cursorEvents([&] {
                                  dialog.type("abc\n");
                                  dialog.key(XK_BackSpace);
                                  dialog.key(XK_Delete);
                              }),
                              IsEmpty());
                  EXPECT_EQ(textOf(innerOf(3)), "fixed");
              });

    runFilled(
        [] {
            guiText(3, 0, 5, 0, 100, 0);
            guiEdit(4, 6, 0, 100, 0, 0);
        },
        [] { guiEnable(3, 0); },
        [this](Shown dialog) {
            EXPECT_THAT(cursorEvents([&] {
                            dialog.type("abc");
                            robot.click(innerOf(3));
                            dialog.type("d");
                        }),
                        IsEmpty());
            EXPECT_EQ(textOf(innerOf(3)), "");
            EXPECT_EQ(textOf(controlOf(4)), "abcd");
        });
}

// Columns are characters, not bytes.
GUI_STARTUP_TEST(MultiLineText, CountsCharactersInALocaleWithLongOnes)
{
    ASSERT_TRUE(std::setlocale(LC_CTYPE, "C.UTF-8"));
    app.run([] {
        runText([] { guiSetText(3, "\xC3\xA4\xC3\xB6\n\xE2\x82\xACuro"); },
                [](Shown dialog) {
                    dialog.key(XK_End, Control);
                    EXPECT_THAT(cursorEvents([&] { dialog.type("s"); }),
                                ElementsAre(cursorAt(3, 1, 5)));
                    dialog.key(XK_Home, Control);
                    dialog.key(XK_Right);
                    EXPECT_THAT(cursorEvents([&] { dialog.type("x"); }),
                                ElementsAre(cursorAt(3, 0, 2)));
                    EXPECT_EQ(textOf(innerOf(3)), "\xC3\xA4x\xC3\xB6\n\xE2\x82\xACuros");
                });
    });
}

GUI_TEST(MultiLineText, MayCloseTheDialogWhenItIsChanged)
{
    recorder.onEvent(GUI_EVENT_CURSOR, 3, [] { guiClose(26); });
    ASSERT_EQ(guiDialog(""), 0);
    guiText(3, 0, 5, 0, 100, 0);
    app.whenShown("v_dlgbbr", [](Shown dialog) { dialog.key(XK_a); });
    EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 26);
    EXPECT_FALSE(newestBoard());
}
