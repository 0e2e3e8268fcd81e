// guiSetText, guiSetTextDbl and guiSetTextInt on labels, buttons and combo boxes.

#include <Xm/ComboBox.h>

#include <climits>
#include <limits>

#include "dialog_plan.h"
#include "hand_made_controls.h"

using namespace kite::testing;

namespace {

struct TextCase {
    std::string given;
    std::string shown;
};

const TextCase kLabelTexts[] = {
    {"", ""},
    {"File", "File"},
    {"&File", "File"},
    {"&", ""},
    {"&&", ""},
    {"a&&&b", "ab"},
    {"Save && E&xit&", "Save  Exit"},
    {"two\nlines", "two\nlines"},
    {"\n", "\n"},
    {"one\n\nthree\n", "one\n\nthree\n"},
    {std::string(255, 'a'), std::string(255, 'a')},
    {std::string(256, 'b'), std::string(255, 'b')},
    {std::string(300, 'c'), std::string(255, 'c')},
    {"&" + std::string(300, 'd'), std::string(254, 'd')},  // cut first
    {std::string(255, 'e') + "&x", std::string(255, 'e')},
    {std::string(300, '&') + "x", ""},
    {"\x80\x9F\xA0\xC4\xFF", "\x80\x9F\xA0\xC4\xFF"},
    {"100%d %s %%", "100%d %s %%"},
};

const Kind kLabelled[] = {Label, PushButton, Check, Radio};

std::string read(int id)
{
    char buffer[1000];
    const int length = guiGetText(id, buffer, sizeof buffer);
    EXPECT_EQ(length, static_cast<int>(std::string(buffer).size()));
    return buffer;
}

}  // namespace

GUI_TEST(SetText, OfLabelsAndButtons)
{
    runDialog({.build = buildSimpleKinds, .fill = [] {
                   for (const Kind kind : kLabelled)
                       for (const TextCase& text : kLabelTexts) {
                           SCOPED_TRACE(std::to_string(kind) + " \"" + text.given + '"');
                           guiSetText(kind, text.given.c_str());
                           EXPECT_EQ(read(kind), text.shown);
                           EXPECT_EQ(guiGetTextLen(kind), static_cast<int>(text.shown.size()));
                       }
               }});
}

GUI_TEST(SetText, LinesOfALabelAreLines)
{
    runDialog({.build = buildSimpleKinds, .fill = [] {
                   for (const Kind kind : kLabelled) {
                       guiSetText(kind, "one\ntwo\nthree");
                       auto* const label = resource<XmString>(innerOf(kind), XmNlabelString);
                       EXPECT_EQ(XmStringLineCount(label), 3) << kind;
                       XmStringFree(label);
                   }
               }});
}

GUI_TEST(SetText, NullIsTheEmptyText)
{
    runDialog({.build = buildSimpleKinds, .fill = [] {
                   makeOtherKinds();
                   for (const Kind kind : {Label, PushButton, Check, Radio, Edit, Combo}) {
                       guiSetText(kind, "abc");
                       guiSetText(kind, nullptr);
                       EXPECT_EQ(guiGetTextLen(kind), 0) << kind;
                   }
                   guiSetText(MultiLine, nullptr);
                   EXPECT_EQ(textOf(innerOf(MultiLine)), "");
                   guiSetText(Spin, "12");
                   guiSetText(Spin, nullptr);
                   EXPECT_EQ(read(Spin), "0");
               }});
}

GUI_TEST(SetText, KeepsTheSizeOfTheControl)
{
    runDialog({.build = buildSimpleKinds, .look = [](Shown) {
                   makeOtherKinds();
                   for (const Kind kind :
                        {Label, PushButton, Check, Radio, Edit, Combo, MultiLine, Spin}) {
                       const Rect before = rectOf(outerOf(kind));
                       guiSetText(
                           kind,
                           "77\nmuch longer than the place of any control, and two lines of it");
                       settle();
                       EXPECT_EQ(rectOf(outerOf(kind)), before) << kind;
                   }
               }});
}

GUI_TEST(SetText, OfNumbers)
{
    struct {
        double number;
        const char* text;
    } const doubles[] = {
        {0.0, "0"},      {-0.5, "-0.5"},       {1.0 / 3, "0.333333"},
        {1e6, "1e+06"},  {123456.0, "123456"}, {1234567.0, "1.23457e+06"},
        {1e-5, "1e-05"}, {-1e300, "-1e+300"},  {std::numeric_limits<double>::infinity(), "inf"}};
    struct {
        int number;
        const char* text;
    } const ints[] = {{0, "0"}, {-7, "-7"}, {INT_MAX, "2147483647"}, {INT_MIN, "-2147483648"}};
    runDialog({.build = buildSimpleKinds, .fill = [&] {
                   for (const Kind kind : {Label, Edit, PushButton}) {
                       for (const auto& row : doubles) {
                           guiSetTextDbl(kind, row.number);
                           EXPECT_EQ(read(kind), row.text) << kind;
                       }
                       for (const auto& row : ints) {
                           guiSetTextInt(kind, row.number);
                           EXPECT_EQ(read(kind), row.text) << kind;
                           EXPECT_EQ(guiGetTextInt(kind), row.number);
                       }
                   }
               }});
}

GUI_TEST(SetText, OfACombosItemSelectsIt)
{
    runDialog({.fill = [] {
        Widget const combo = makeCombo(Combo, {"red", "green", "blue"});
        guiSetText(Combo, "green");
        EXPECT_EQ(read(Combo), "green");
        const int position = resource<int>(combo, XmNselectedPosition);
        guiSetText(Combo, "blue");
        EXPECT_EQ(resource<int>(combo, XmNselectedPosition), position + 1);
        EXPECT_EQ(textOf(resource<Widget>(combo, XmNtextField)), "blue");
    }});
}

GUI_TEST(SetText, OfNoItemOfTheCombo)
{
    runDialog({.fill = [] {
        Widget const combo = makeCombo(Combo, {"red", "green"});
        Widget const field = resource<Widget>(combo, XmNtextField);
        for (const char* const text :
             {"mauve", "mauve", "red", "red", "", "", "a & b", "\xC4\xFF"}) {
            guiSetText(Combo, text);
            EXPECT_EQ(textOf(field), text);
            EXPECT_EQ(read(Combo), text);
            EXPECT_EQ(guiGetTextLen(Combo), static_cast<int>(std::string(text).size()));
        }
    }});
}

GUI_TEST(SetText, OfAComboReplacesWhatWasTyped)
{
    runDialog({.fill =
                   [] {
                       makeCombo(Combo, {"red", "green"});
                   },
               .look =
                   [](Shown dialog) {
                       guiSetText(Combo, "red");
                       guiSetFocus(Combo);
                       dialog.type("x");
                       EXPECT_NE(read(Combo), "red");
                       guiSetText(Combo, "red");
                       EXPECT_EQ(read(Combo), "red");
                       EXPECT_EQ(textOf(resource<Widget>(outerOf(Combo), XmNtextField)), "red");
                   }});
}
