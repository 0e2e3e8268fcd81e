// Boxes within boxes.

#include "box_kinds.h"

using namespace kite::testing;

namespace {

// Shows each box inside the one before it. Every one is answered after those within it.
void nest(const std::vector<BoxKind>& kinds, std::size_t first, Widget outer)
{
    if (first == kinds.size()) return;
    const BoxKind& kind = kinds[first];
    const int answer = whileShown(kind, [&](Shown box) {
        EXPECT_EQ(XtParent(box.shell()), outer);
        EXPECT_EQ(guiGetTopWnd(), box.widget());
        nest(kinds, first + 1, box.widget());
        EXPECT_EQ(guiGetTopWnd(), box.widget());
        EXPECT_TRUE(isShown(box.widget()));
    });
    EXPECT_EQ(answer, kind.choices.front().answer) << kind.call;
    EXPECT_EQ(guiGetTopWnd(), outer) << kind.call;
}

}  // namespace

GUI_TEST(BoxNesting, EachBoxBelongsToTheOneThatItFound)
{
    nest({boxKind("guiInfoBox"), boxKind("guiErrorBox"), boxKind("guiGetTextBox")}, 0,
         app.find("v_mainwnd"));
}

// In the other order, with the question innermost.
GUI_TEST(BoxNesting, PromptMayBeTheOuterBox)
{
    nest({boxKind("guiGetTextBox"), boxKind("guiYesNoCancelBox"), boxKind("guiInfoBox")}, 0,
         app.find("v_mainwnd"));
}

GUI_TEST(BoxNesting, BoxFromATimerComesUpWhileAnotherWaits)
{
    int inner = -5;
    Widget outer = nullptr;
    recorder.onEvent(GUI_EVENT_TIMER, [&] {
        guiTimer(0);
        inner = guiYesNoBox("The time is up. Go on?");
    });
    app.whenShown("v_infobox", [&](Shown box) {
        outer = box.widget();
        guiTimer(100);
    });
    app.whenShown("v_askbox", [&](Shown box) {
        EXPECT_EQ(XtParent(box.shell()), outer);
        EXPECT_EQ(guiGetTopWnd(), box.widget());
        box.click("No");
    });
    app.when(
        "the question is answered", [&] { return inner != -5; },
        [&] {
            EXPECT_EQ(guiGetTopWnd(), outer);
            Shown{outer}.click("OK");
        });
    guiInfoBox("Waiting");
    EXPECT_EQ(inner, 0);
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
}

GUI_TEST(BoxNesting, AnswersAreKeptApart)
{
    std::vector<int> answers;
    app.whenShown("v_askbox", [&](Shown outer) {
        app.whenShown("v_askbox", [](Shown inner) { inner.click("Cancel"); });
        answers.push_back(guiYesNoCancelBox("Inner?"));
        outer.click("No");
    });
    answers.push_back(guiYesNoCancelBox("Outer?"));
    EXPECT_EQ(answers, (std::vector{-1, 0}));
}

GUI_TEST(BoxNesting, TextOfTheOuterPromptIsKept)
{
    char outerText[16] = "outer";
    char innerText[16] = "inner";
    app.whenShown("v_promptbox", [&](Shown outer) {
        app.whenShown("v_promptbox", [](Shown inner) { inner.key(XK_Return); });
        EXPECT_EQ(guiGetTextBox("Inner", innerText, sizeof innerText, 0), 5);
        outer.key(XK_Return);
    });
    EXPECT_EQ(guiGetTextBox("Outer", outerText, sizeof outerText, 0), 5);
    EXPECT_STREQ(outerText, "outer");
    EXPECT_STREQ(innerText, "inner");
}

// The prompt leaves before anything of it is shown: only the report is there.
GUI_TEST(BoxNesting, MisuseIsReportedInsideABox)
{
    whileShown(boxKind("guiInfoBox"), [](Shown outer) {
        EXPECT_MISUSE(guiGetTextBox("?", nullptr, 5, 0), "GetTextBox: invalid buffer", -1);
        EXPECT_EQ(guiGetTopWnd(), outer.widget());
    });
}
