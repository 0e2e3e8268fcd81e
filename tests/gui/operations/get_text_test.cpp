// guiGetText, its numbers and guiGetTextLen.

#include <Xm/ComboBox.h>
#include <Xm/Container.h>
#include <Xm/List.h>
#include <Xm/Text.h>

#include "dialog_plan.h"
#include "hand_made_controls.h"

using namespace kite::testing;

namespace {

struct Read {
    int result;
    std::string text;
    bool operator==(const Read&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Read& read)
{
    return out << read.result << " \"" << read.text << '"';
}

// Also that nothing is written behind the buffer.
Read readInto(int id, int size)
{
    std::string buffer(1000, '#');
    const int result = guiGetText(id, buffer.data(), size);
    EXPECT_EQ(buffer.find_first_not_of('#', static_cast<std::size_t>(size)), std::string::npos);
    return {result, buffer.c_str()};
}

void select(Widget text, long from, long to)
{
    XmTextSetSelection(text, from, to, XtLastTimestampProcessed(XtDisplay(text)));
}

}  // namespace

GUI_TEST(GetText, FillsBuffersOfEverySize)
{
    runDialog({.build = buildSimpleKinds, .fill = [] {
                   for (const Kind kind : {Label, Edit, PushButton, Check, Radio}) {
                       SCOPED_TRACE(kind);
                       guiSetText(kind, "abcdef");
                       EXPECT_EQ(readInto(kind, 2), (Read{1, "a"}));
                       EXPECT_EQ(readInto(kind, 4), (Read{3, "abc"}));
                       EXPECT_EQ(readInto(kind, 6), (Read{5, "abcde"}));
                       EXPECT_EQ(readInto(kind, 7), (Read{6, "abcdef"}));
                       EXPECT_EQ(readInto(kind, 8), (Read{6, "abcdef"}));
                       EXPECT_EQ(readInto(kind, 1000), (Read{6, "abcdef"}));
                       EXPECT_EQ(guiGetTextLen(kind), 6);
                       guiSetText(kind, "");
                       EXPECT_EQ(readInto(kind, 10), (Read{0, ""}));
                       EXPECT_EQ(guiGetTextLen(kind), 0);
                   }
               }});
}

GUI_TEST(GetText, OfAnUnusableBufferIsRefused)
{
    runDialog({.build = buildSimpleKinds, .fill = [] {
                   guiSetText(Edit, "abcdef");
                   for (const int size : {1, 0, -1, -1000}) {
                       char buffer[4] = "xyz";
                       EXPECT_MISUSE(guiGetText(Edit, buffer, size), "GetText: invalid buffer", -1);
                       EXPECT_STREQ(buffer, "xyz");
                   }
                   EXPECT_MISUSE(guiGetText(Edit, nullptr, 100), "GetText: invalid buffer", -1);
               }});
}

GUI_TEST(GetText, LooksAtTheBufferFirst)
{
    char buffer[4] = "xyz";
    EXPECT_MISUSE(guiGetText(1, buffer, 1), "GetText: invalid buffer", -1);
    runDialog({.build = buildSimpleKinds, .fill = [&] {
                   for (const int id : {-1, 999, int{Line}})
                       EXPECT_MISUSE(guiGetText(id, buffer, 1), "GetText: invalid buffer", -1);
               }});
    EXPECT_STREQ(buffer, "xyz");
}

GUI_TEST(GetText, NumbersAreAsFarAsTheTextIsOne)
{
    struct {
        std::string text;
        int whole;
        double real;
    } const rows[] = {{"12abc", 12, 12.0},
                      {"", 0, 0.0},
                      {"abc", 0, 0.0},
                      {"-3.75", -3, -3.75},
                      {" 8", 8, 8.0},
                      {"1e3", 1, 1000.0},
                      {"2147483647", 2147483647, 2147483647.0},
                      {"0x10", 0, 16.0},
                      {std::string(254, '0') + "57", 5, 5.0}};  // 255 bytes of it
    runDialog({.build = buildSimpleKinds, .fill = [&] {
                   for (const auto& row : rows) {
                       SCOPED_TRACE(row.text);
                       guiSetText(Edit, row.text.c_str());
                       EXPECT_EQ(guiGetTextInt(Edit), row.whole);
                       EXPECT_EQ(guiGetTextDbl(Edit), row.real);
                   }
               }});
}

GUI_TEST(GetText, OfAListIsTheItemAtTheKeyboardCursor)
{
    runDialog({.fill = [] {
        Widget const list = makeList(List, {"zero", "one", "two & a bit"});
        XmListSelectPos(list, 1, False);
        XmListSetKbdItemPos(list, 3);
        EXPECT_EQ(readInto(List, 100), (Read{11, "two & a bit"})) << "not the selected one";
        EXPECT_EQ(guiGetTextLen(List), 11);
        XmListSetKbdItemPos(list, 2);
        EXPECT_EQ(readInto(List, 3), (Read{2, "on"}));
        EXPECT_EQ(guiGetTextLen(List), 3);
    }});
}

GUI_TEST(GetText, OfAListWithoutItemsFails)
{
    runDialog({.fill = [] {
        Widget const list = makeList(List);
        EXPECT_EQ(readInto(List, 100), (Read{-1, ""}));
        EXPECT_EQ(guiGetTextLen(List), -1);
        EXPECT_EQ(guiGetTextInt(List), 0);
        XmString const item = XmStringCreateLocalized(const_cast<char*>("12"));
        XmListAddItem(list, item, 0);
        XmStringFree(item);
        XmListSetKbdItemPos(list, 1);
        EXPECT_EQ(guiGetTextInt(List), 12);
        XmListDeleteAllItems(list);
        EXPECT_EQ(readInto(List, 100), (Read{-1, ""}));
    }});
}

GUI_TEST(GetText, OfAListFollowsTheKeyboard)
{
    runDialog({.fill = [] { makeList(List, numberedItems(5)); },
               .look =
                   [](Shown dialog) {
                       guiSetFocus(List);
                       dialog.key(XK_Down);
                       dialog.key(XK_Down);
                       EXPECT_EQ(readInto(List, 100), (Read{6, "item 2"}));
                   }});
}

GUI_TEST(GetText, OfATextIsTheSelectedPart)
{
    runDialog({.fill = [] { makeText(MultiLine, "abc\ndef\nghi"); },
               .look =
                   [](Shown) {
                       Widget const text = innerOf(MultiLine);
                       EXPECT_EQ(readInto(MultiLine, 100), (Read{0, ""}));
                       EXPECT_EQ(guiGetTextLen(MultiLine), 0);
                       select(text, 2, 9);
                       EXPECT_EQ(readInto(MultiLine, 100), (Read{7, "c\ndef\ng"}));
                       EXPECT_EQ(readInto(MultiLine, 3), (Read{2, "c\n"}));
                       EXPECT_EQ(guiGetTextLen(MultiLine), 7);
                       select(text, 0, 11);
                       EXPECT_EQ(guiGetTextLen(MultiLine), 11);
                       select(text, 4, 4);
                       EXPECT_EQ(guiGetTextLen(MultiLine), 0);
                       EXPECT_EQ(readInto(MultiLine, 100), (Read{0, ""}));
                   }});
}

GUI_TEST(GetText, OfAChoiceIsItsSelectedItem)
{
    runDialog({.fill = [] {
        Widget const choice = makeChoice(ChoiceBox, {"one", "two"});
        for (const std::string item : {"two", "one"}) {
            XmString const string = XmStringCreateLocalized(const_cast<char*>(item.c_str()));
            XmComboBoxSelectItem(choice, string);
            XmStringFree(string);
            EXPECT_EQ(readInto(ChoiceBox, 100), (Read{3, item}));
            EXPECT_EQ(guiGetTextLen(ChoiceBox), 3);
        }
    }});
}

GUI_TEST(GetText, OfAnEmptyChoiceOrComboIsEmpty)
{
    runDialog({.fill = [] {
        makeChoice(ChoiceBox);
        makeCombo(Combo);
        for (const Kind kind : {ChoiceBox, Combo}) {
            EXPECT_EQ(readInto(kind, 100), (Read{0, ""}));
            EXPECT_EQ(guiGetTextLen(kind), 0);
        }
    }});
}

GUI_TEST(GetText, OfATreeIsItsSelectedItem)
{
    runDialog({.fill =
                   [] {
                       makeTree(Tree, {"root", "branch"});
                   },
               .look =
                   [](Shown) {
                       EXPECT_EQ(readInto(Tree, 100), (Read{0, ""}));
                       selectTreeItem(innerOf(Tree), "branch");
                       EXPECT_EQ(readInto(Tree, 100), (Read{6, "branch"}));
                       EXPECT_EQ(readInto(Tree, 4), (Read{3, "bra"}));
                       selectTreeItem(innerOf(Tree), "root");
                       EXPECT_EQ(readInto(Tree, 100), (Read{4, "root"}));
                       EXPECT_MISUSE(guiGetTextLen(Tree),
                                     "GetTextLen: unsuitable control type (id = 14)", -1);
                   }});
}

GUI_TEST(GetText, LengthsHaveNoLimit)
{
    runDialog({.build = buildSimpleKinds, .fill = [] {
                   guiSetText(Edit, std::string(70000, 'a').c_str());
                   EXPECT_EQ(guiGetTextLen(Edit), 70000);
               }});
}
