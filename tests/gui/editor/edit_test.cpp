// The user edits, and gives the text back or gives up.

#include <Xm/Text.h>

#include "editor_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

// The question is there: it is answered with that button, or by its close button.
Step answered(const char* button)
{
    return Script::instance().shown("v_askbox", [=](Shown question) {
        EXPECT_EQ(question.message(), "Exit the editor?");
        EXPECT_EQ(XtParent(question.shell()), findWidget(kEditor));
        if (button)
            question.click(button);
        else
            question.closeByWindowManager();
    });
}

// The user is back in the editor after a question, and the window manager is done with that.
Step back(const std::function<void(Shown)>& action)
{
    return {"the editor is back", [] { return guiGetTopWnd() == findWidget(kEditor); },
            [=] {
                EXPECT_TRUE(wm::waitForFocus(findWidget(kEditor)));
                action(Shown{findWidget(kEditor)});
            }};
}

}  // namespace

GUI_TEST(Editor, ShowsTheTextAndIsTypedInto)
{
    // Shows the lines of the host.
    {
        struct {
            std::vector<std::string> lines;
            std::string text;
            int count;
        } const rows[] = {{{}, "", 0},
                          {{""}, "\n", 1},
                          {{"one"}, "one\n", 1},
                          {{"one", "", "three"}, "one\n\nthree\n", 3}};
        for (const auto& row : rows) {
            fillEditor(row.lines);
            EXPECT_EQ(editAndAccept([&](Shown) {
                          EXPECT_EQ(edited(), row.text);
                          EXPECT_EQ(nextEditorLine(), "[-1]") << "the text is in the box only";
                      }),
                      row.count);
            EXPECT_EQ(editorLines(), row.lines);
        }

        // What a box has left is in the next one.
        fillEditor({"one"});
        editAndAccept([](Shown) {});
        guiEditorPutLine("two");
        EXPECT_EQ(editAndAccept([](Shown) { EXPECT_EQ(edited(), "one\ntwo\n"); }), 2);
    }

    // Without a click into the text first. Return and Tab belong to the text.
    {
        fillEditor({"two"});
        const int count = editAndAccept([&](Shown box) {
            box.type("one\n\tx");
            EXPECT_TRUE(pumpUntil([] { return edited() == "one\n\txtwo\n"; })) << edited();
            EXPECT_TRUE(resource<Boolean>(editorText(), XmNcursorPositionVisible));
            box.key(XK_End, Control);
            box.type("three");
            EXPECT_TRUE(pumpUntil([] { return edited() == "one\n\txtwo\nthree"; })) << edited();
        });
        EXPECT_EQ(count, 3);
        EXPECT_THAT(editorLines(), ElementsAre("one", "\txtwo", "three"));
    }

    // Hides its cursor without the focus.
    {
        editAndAccept([&](Shown box) {
            const auto visible = [] {
                return bool{resource<Boolean>(editorText(), XmNcursorPositionVisible) != 0};
            };
            ASSERT_TRUE(wm::waitForFocus(box.shell()));
            EXPECT_TRUE(pumpUntil(visible));
            box.key(XK_Tab, Control);
            EXPECT_TRUE(pumpUntil([&] { return !visible(); }));
            box.key(XK_Tab, Shift);
            EXPECT_TRUE(pumpUntil(visible));
        });
    }
}

GUI_TEST(Editor, AsksBeforeItIsCancelled)
{
    // By mouse and by keyboard. Answered with no, the box stays as it is.
    {
        const std::vector<std::function<void(Shown)>> cancels{
            [](Shown box) { box.click("Cancel"); }, [](Shown box) { box.key(XK_Escape); },
            [](Shown box) { wm::requestClose(box.shell()); }};
        for (const auto& cancel : cancels) {
            fillEditor({"one"});
            const auto cancelAgain = [&](Shown box) {
                EXPECT_TRUE(isShown(box.widget()));
                EXPECT_EQ(edited(), "new one\n");
                cancel(box);
            };
            script.inOrder({script.shown(kEditor,
                                         [&](Shown box) {
                                             box.type("new ");
                                             cancelAgain(box);
                                         }),
                            answered("No"), back(cancelAgain), answered(nullptr), back(cancelAgain),
                            answered("Yes")});
            EXPECT_EQ(guiEditorBox("Editor"), -1);
            EXPECT_FALSE(findWidget(kEditor));
            EXPECT_EQ(nextEditorLine(), "[-1]");
            EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
        }
    }

    // Is gone on with after no.
    {
        fillEditor({"one"});
        script.inOrder({script.shown(kEditor, [](Shown box) { box.click("Cancel"); }),
                        answered("No"), back([](Shown box) {
                            box.click("v_mltext");
                            box.key(XK_End, Control);
                            box.type("two");
                            EXPECT_EQ(edited(), "one\ntwo");
                            box.click("OK");
                        })});
        EXPECT_EQ(guiEditorBox("Editor"), 2);
        EXPECT_THAT(editorLines(), ElementsAre("one", "two"));
    }
}

GUI_TEST(Editor, ForgetsWhatHandlersPutInMeanwhile)
{
    fillEditor({"one"});
    EXPECT_EQ(editAndAccept([](Shown) {
                  fillEditor({"a", "b", "c"});
                  EXPECT_EQ(edited(), "one\n");
              }),
              1);
    EXPECT_THAT(editorLines(), ElementsAre("one"));

    script.inOrder({script.shown(kEditor,
                                 [](Shown box) {
                                     fillEditor({"a", "b", "c"});
                                     box.key(XK_Escape);
                                 }),
                    answered("Yes")});
    EXPECT_EQ(guiEditorBox("Editor"), -1);
    EXPECT_EQ(nextEditorLine(), "[-1]");

    fillEditor({"one"});
    EXPECT_EQ(editAndAccept([](Shown) {
                  fillEditor({"a", "b", "c"});
                  setEdited("");
              }),
              0);
    EXPECT_EQ(nextEditorLine(), "[-1]");
}
