// The edit menu over texts: its five choices.

#include <Xm/Text.h>
#include <Xm/TextF.h>

#include "popups_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int kEdit = 1, kCombo = 2, kReadOnlyEdit = 3, kReadOnlyText = 4, kCheck = 5;

constexpr char kWords[] = "Hello world";

void build()
{
    guiEdit(kEdit, 0, 0, 100, 0, 0);
    guiCombo(kCombo, 1, 0, 100);
    guiText(kText, 2, 3, 0, 100, 0);
    guiEdit(kReadOnlyEdit, 5, 0, 100, 0, 1);
    guiText(kReadOnlyText, 6, 3, 0, 100, 1);
    guiCheck(kCheck, 9, 0, 100, "Check");
}

// The text itself, where the user clicks.
Widget fieldOf(int id)
{
    if (id == kEdit || id == kReadOnlyEdit) return controlOf(id);
    return id == kCombo ? resource<Widget>(controlOf(id), XmNtextField) : innerOf(id);
}

void put(Widget text, const char* words)
{
    if (XmIsText(text))
        XmTextSetString(text, const_cast<char*>(words));
    else
        XmTextFieldSetString(text, const_cast<char*>(words));
}

void select(Widget text, int left, int right)
{
    XmTextSetSelection(text, left, right, XtLastTimestampProcessed(XtDisplay(text)));
}

std::string selectedIn(Widget text)
{
    char* const words = XmTextGetSelection(text);
    std::string selected = words ? words : "";
    XtFree(words);
    return selected;
}

std::string clipboard()
{
    char line[100] = "";
    guiPasteText(line, sizeof line, 1);
    return line;
}

void choose(Widget text, const char* label)
{
    Script::instance().whenShown("p_menu", picking(label));
    Robot::instance().click(text, RightButton);
    settle();
}

// "Hello world" with "Hello" selected (or nothing), and "Clip" on the clipboard.
void prepare(Widget text, bool isSelected = true)
{
    put(text, kWords);
    if (isSelected)
        select(text, 0, 5);
    else
        XmTextClearSelection(text, CurrentTime);
    XmTextSetInsertionPosition(text, 5);
    guiCopyText("Clip");
    settle();
}

struct Outcome {
    std::string text, selected, onClipboard;
    bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome)
{
    return out << '"' << outcome.text << "\", selected \"" << outcome.selected << "\", clipboard \""
               << outcome.onClipboard << '"';
}

Outcome outcomeOf(Widget text, const char* label, bool isSelected)
{
    prepare(text, isSelected);
    choose(text, label);
    return {textOf(text), selectedIn(text), clipboard()};
}

struct Choice {
    const char* label;
    bool isSelected;
    Outcome outcome;
};

void expectChoices(Widget text, const std::vector<Choice>& choices)
{
    for (const auto& [label, isSelected, outcome] : choices) {
        SCOPED_TRACE(std::string{label} + (isSelected ? " selected" : " without selection"));
        EXPECT_EQ(outcomeOf(text, label, isSelected), outcome);
    }
}

}  // namespace

GUI_TEST(EditMenu, ActsOnTextsOfDialogs)
{
    const std::vector<Choice> choices = {
        {"Cut", true, {" world", "", "Hello"}},
        {"Cut", false, {kWords, "", "Clip"}},
        {"Copy", true, {kWords, "Hello", "Hello"}},
        {"Copy", false, {kWords, "", "Clip"}},
        {"Clear", true, {" world", "", "Clip"}},
        {"Clear", false, {"", "", "Clip"}},
        {"Select All", true, {kWords, kWords, "Clip"}},
        {"Select All", false, {kWords, kWords, "Clip"}},
    };
    runDialog(build, [&](Shown) {
        for (const int id : std::initializer_list<int>{kEdit, kCombo, kText}) {
            SCOPED_TRACE(id);
            expectChoices(fieldOf(id), choices);
        }
    });

    // guiCopyText ends the line.
    runDialog(build, [&](Shown) {
        EXPECT_EQ(outcomeOf(fieldOf(kText), "Paste", true).text, "Clip\n world");
        EXPECT_EQ(outcomeOf(fieldOf(kText), "Paste", false).text, "HelloClip\n world");
        for (const int id : std::initializer_list<int>{kEdit, kCombo}) {
            SCOPED_TRACE(id);
            for (const bool isSelected : {true, false}) {
                // A word that is on the clipboard without the end of a line.
                prepare(fieldOf(kText));
                choose(fieldOf(kText), "Copy");
                ASSERT_EQ(clipboard(), "Hello");
                put(fieldOf(id), "abcdef");
                if (isSelected) select(fieldOf(id), 2, 4);
                XmTextSetInsertionPosition(fieldOf(id), 3);
                choose(fieldOf(id), "Paste");
                EXPECT_EQ(textOf(fieldOf(id)), isSelected ? "abHelloef" : "abcHellodef");
            }
        }
    });
}

GUI_TEST(EditMenu, ActsOnTheOutputArea)
{
    Widget const text = app.find("v_text");
    expectChoices(text, {
                            {"Cut", true, {" world", "", "Hello"}},
                            {"Cut", false, {kWords, "", "Clip"}},
                            {"Copy", true, {kWords, "Hello", "Hello"}},
                            {"Copy", false, {kWords, "", "Clip"}},
                            {"Clear", true, {" world", "", "Clip"}},
                            {"Clear", false, {"", "", "Clip"}},
                            {"Select All", true, {kWords, kWords, "Clip"}},
                            {"Select All", false, {kWords, kWords, "Clip"}},
                        });
    EXPECT_EQ(outcomeOf(text, "Paste", true).text, "Clip\n world");
    EXPECT_EQ(outcomeOf(text, "Paste", false).text, "HelloClip\n world");
    put(text, "one\ntwo\nthree");
    choose(text, "Select All");
    EXPECT_EQ(selectedIn(text), "one\ntwo\nthree");
}

// What is there to be read only can be copied.
GUI_TEST(EditMenu, ChangesNoReadOnlyText)
{
    runDialog(build, [&](Shown) {
        for (const int id : std::initializer_list<int>{kReadOnlyEdit, kReadOnlyText}) {
            SCOPED_TRACE(id);
            expectChoices(fieldOf(id), {
                                           {"Cut", true, {kWords, "Hello", "Clip"}},
                                           {"Paste", true, {kWords, "Hello", "Clip"}},
                                           {"Clear", true, {kWords, "Hello", "Clip"}},
                                           {"Clear", false, {kWords, "", "Clip"}},
                                           {"Copy", true, {kWords, "Hello", "Hello"}},
                                           {"Select All", false, {kWords, kWords, "Clip"}},
                                       });
        }
    });
}

GUI_TEST(EditMenu, HasFiveItemsAtThePointer)
{
    const auto expectMenu = [this](Widget text, Widget top) {
        ASSERT_NE(text, nullptr);
        const Point offset{7, 5};
        const Point pointer = rectOf(text).corner() + offset;
        app.whenShown("p_menu", [&](Shown menu) {
            EXPECT_THAT(menu.labels(), ElementsAre("Cut", "Copy", "Paste", "Clear", "Select All"));
            std::vector<KeySym> mnemonics;
            for (Widget const item : popupItems())
                mnemonics.push_back(std::string{XtName(item)} == "v_mitem"
                                        ? resource<KeySym>(item, XmNmnemonic)
                                        : KeySym{NoSymbol});
            EXPECT_THAT(mnemonics, ElementsAre(XK_t, XK_C, XK_P, XK_l, NoSymbol, XK_A));
            EXPECT_EQ(XtParent(menu.shell()), top);
            EXPECT_EQ(cornerOf(menu), pointer);
            dismiss(menu);
        });
        robot.click(text, RightButton, offset);
        EXPECT_TRUE(isPopupGone());
    };
    expectMenu(app.find("v_text"), app.find("v_mainwnd"));
    runDialog(build, [&](Shown dialog) {
        for (const int id :
             std::initializer_list<int>{kEdit, kCombo, kText, kReadOnlyEdit, kReadOnlyText}) {
            SCOPED_TRACE(id);
            expectMenu(fieldOf(id), dialog.widget());
        }
        expectMenu(controlOf(kCombo), dialog.widget());
    });
}

GUI_TEST(EditMenu, IsUsedByKeyboard)
{
    runDialog(build, [this](Shown) {
        Widget const text = fieldOf(kEdit);
        const auto keysAfter = [&](const std::vector<KeySym>& keys) {
            prepare(text);
            app.whenShown("p_menu", [&, keys](Shown) {
                for (const KeySym key : keys) robot.keyHandled(key);
            });
            robot.click(text, RightButton);
            settle();
            return Outcome{textOf(text), selectedIn(text), clipboard()};
        };
        EXPECT_EQ(keysAfter({XK_t}), (Outcome{" world", "", "Hello"}));
        EXPECT_EQ(keysAfter({XK_c}), (Outcome{kWords, "Hello", "Hello"}));
        EXPECT_EQ(keysAfter({XK_l}), (Outcome{" world", "", "Clip"}));
        EXPECT_EQ(keysAfter({XK_a}), (Outcome{kWords, kWords, "Clip"}));
        EXPECT_EQ(keysAfter({XK_Down, XK_Return}), (Outcome{kWords, "Hello", "Hello"}));
        EXPECT_EQ(keysAfter({XK_Down, XK_Down, XK_Down, XK_Down, XK_Return}),
                  (Outcome{kWords, kWords, "Clip"}));
        EXPECT_EQ(keysAfter({XK_Escape}), (Outcome{kWords, "Hello", "Clip"}));
        robot.moveTo(Point{1270, 1010});
        prepare(text);
        app.whenShown("p_menu", [&](Shown menu) {
            robot.moveTo(Point{1270, 1010});
            robot.click();
            EXPECT_TRUE(pumpUntil([&] { return !isShown(menu.widget()); }));
        });
        robot.click(text, RightButton);
        EXPECT_EQ((Outcome{textOf(text), selectedIn(text), clipboard()}),
                  (Outcome{kWords, "Hello", "Clip"}));
    });
}

// The events of the changes, and none of the menu.
GUI_TEST(EditMenu, ChangesAreReported)
{
    const auto eventsOf = [](int id, const char* label, bool isSelected = true) {
        prepare(fieldOf(id), isSelected);
        return eventsDuring([&] { choose(fieldOf(id), label); });
    };
    const auto changed = [](int id, int a) { return toDialog(GUI_EVENT_TEXT_CHANGED, id, a); };
    runDialog(build, [&](Shown) {
        guiSetFocus(kCheck);
        settle();
        EXPECT_THAT(eventsOf(kEdit, "Cut"), ElementsAre(changed(kEdit, 1)));
        EXPECT_THAT(eventsOf(kEdit, "Clear"), ElementsAre(changed(kEdit, 1)));
        EXPECT_THAT(eventsOf(kEdit, "Clear", false), ElementsAre(changed(kEdit, 0)));
        EXPECT_THAT(eventsOf(kEdit, "Paste", false), ElementsAre(changed(kEdit, 1)));
        EXPECT_THAT(eventsOf(kCombo, "Cut"), ElementsAre(changed(kCombo, 0)));
        EXPECT_THAT(eventsOf(kCombo, "Clear"), ElementsAre(changed(kCombo, 0)));
        EXPECT_THAT(eventsOf(kCombo, "Paste", false), ElementsAre(changed(kCombo, 0)));
        EXPECT_THAT(eventsOf(kText, "Cut"), ElementsAre(cursorAt(kText, 0, 0)));
        EXPECT_THAT(eventsOf(kText, "Clear"), ElementsAre(cursorAt(kText, 0, 0)));
        EXPECT_THAT(eventsOf(kText, "Clear", false), ElementsAre(cursorAt(kText, -1, 0)));
        EXPECT_THAT(only(GUI_EVENT_CURSOR, eventsOf(kText, "Paste", false)), ::testing::SizeIs(1));
        for (const int id : {kEdit, kCombo, kReadOnlyEdit})
            for (const char* const label : {"Copy", "Select All"})
                EXPECT_THAT(eventsOf(id, label), IsEmpty()) << id << label;
        EXPECT_TRUE(hasFocus(kCheck)) << "the keyboard stays";
    });
}

// The menu takes the keyboard and gives it back, as boxes do.
GUI_TEST(EditMenu, IsALeavingOfTheEditThatHasTheKeyboard)
{
    runDialog(build, [&](Shown dialog) {
        ASSERT_TRUE(hasFocus(kEdit));
        prepare(fieldOf(kEdit));
        EXPECT_THAT(eventsDuring([&] { choose(fieldOf(kEdit), "Cut"); }),
                    ElementsAre(leftBehind(kEdit), toDialog(GUI_EVENT_TEXT_CHANGED, kEdit, 1)));
        EXPECT_TRUE(hasFocus(kEdit));
        dialog.type("!");
        EXPECT_EQ(textOf(fieldOf(kEdit)).size(), 7U) << "it has the keyboard again";
    });
}
