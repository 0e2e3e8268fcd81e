// Answers by keyboard. The library leaves it to the toolkit what a key does in a box.

#include "box_kinds.h"

using namespace kite::testing;

namespace {

int answerTo(const BoxKind& kind, const std::vector<KeySym>& keys)
{
    Script::instance().whenShown(kind.widget, [&](Shown box) {
        for (const KeySym key : keys) {
            if (!isShown(box.widget())) break;
            box.key(key);
        }
    });
    return kind.ask("Which one?");
}

}  // namespace

GUI_TEST(BoxKey, ReturnPressesTheFirstButton)
{
    for (const BoxKind& kind : allBoxes())
        EXPECT_EQ(answerTo(kind, {XK_Return}), kind.choices.front().answer) << kind.call;
}

GUI_TEST(BoxKey, SpacePressesTheFirstButton)
{
    for (const BoxKind& kind : messageBoxes())
        EXPECT_EQ(answerTo(kind, {XK_space}), kind.choices.front().answer) << kind.call;
}

// In a prompt the keyboard begins in the field.
GUI_TEST(BoxKey, SpaceAfterTabPressesOkOfThePrompt)
{
    const BoxKind& prompt = boxKind("guiGetTextBox");
    EXPECT_EQ(answerTo(prompt, {XK_Tab, XK_space}), 3);
}

// The buttons of a box are one stop for Tab: it goes round to where it was. Arrows go from one to the next.
GUI_TEST(BoxKey, TabComesBackToTheFirstButton)
{
    for (const BoxKind& kind : messageBoxes()) {
        EXPECT_EQ(answerTo(kind, {XK_Tab, XK_Return}), kind.choices.front().answer) << kind.call;
        EXPECT_EQ(answerTo(kind, {XK_Tab, XK_space}), kind.choices.front().answer) << kind.call;
    }
}

GUI_TEST(BoxKey, TabGoesBetweenTheFieldAndTheButtonsOfThePrompt)
{
    const BoxKind& prompt = boxKind("guiGetTextBox");
    EXPECT_EQ(answerTo(prompt, {XK_Tab, XK_Return}), 3);
    EXPECT_EQ(answerTo(prompt, {XK_Tab, XK_Right, XK_Return}), -1);
    EXPECT_EQ(answerTo(prompt, {XK_Tab, XK_Tab, XK_x, XK_Return}), 4) << "not typed into the field";
}

GUI_TEST(BoxKey, ReturnAfterArrowPressesTheNextButton)
{
    EXPECT_EQ(answerTo(boxKind("guiOkCancelBox"), {XK_Right, XK_Return}), 0);
    EXPECT_EQ(answerTo(boxKind("guiYesNoBox"), {XK_Right, XK_Return}), 0);
    EXPECT_EQ(answerTo(boxKind("guiYesNoCancelBox"), {XK_Right, XK_Return}), 0);
    EXPECT_EQ(answerTo(boxKind("guiYesNoCancelBox"), {XK_Right, XK_Right, XK_Return}), -1);
}

GUI_TEST(BoxKey, SpaceAfterArrowPressesTheNextButton)
{
    EXPECT_EQ(answerTo(boxKind("guiYesNoBox"), {XK_Right, XK_space}), 0);
    EXPECT_EQ(answerTo(boxKind("guiYesNoCancelBox"), {XK_Right, XK_space}), 0);
    EXPECT_EQ(answerTo(boxKind("guiYesNoCancelBox"), {XK_Left, XK_space}), -1);
}

GUI_TEST(BoxKey, EscapePressesTheCancelButton)
{
    EXPECT_EQ(answerTo(boxKind("guiOkCancelBox"), {XK_Escape}), 0);
    EXPECT_EQ(answerTo(boxKind("guiYesNoBox"), {XK_Escape}), 0);
    EXPECT_EQ(answerTo(boxKind("guiYesNoCancelBox"), {XK_Escape}), -1);
    EXPECT_EQ(answerTo(boxKind("guiGetTextBox"), {XK_Escape}), -1);
}

GUI_TEST(BoxKey, EscapeClosesABoxWithOneButton)
{
    for (const BoxKind& kind : {boxKind("guiInfoBox"), boxKind("guiErrorBox")}) {
        app.whenShown(kind.widget, [](Shown box) { box.key(XK_Escape); });
        kind.ask("Read this.");
        EXPECT_TRUE(pumpUntil([&] { return !findWidget(kind.widget); }));
    }
}

GUI_TEST(BoxKey, OtherKeysAreNoAnswer)
{
    for (const BoxKind& kind : messageBoxes()) {
        app.whenShown(kind.widget, [](Shown box) {
            for (const KeySym key : {XK_F1, XK_F5, XK_a, XK_BackSpace, XK_Delete}) box.key(key);
            EXPECT_TRUE(isShown(box.widget()));
            box.key(XK_Return);
        });
        EXPECT_EQ(kind.ask("Which one?"), kind.choices.front().answer) << kind.call;
    }
}
