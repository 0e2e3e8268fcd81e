// Every call begins with black text, on white where one types or selects.

#include "text_attributes_support.h"

using namespace kite::testing;

namespace {

struct Row {
    Kind kind;
    bool isBlack;
    bool isOnWhite;
};

constexpr Row kRows[] = {
    {Label, true, false},  {Edit, true, true},        {PushButton, true, false},
    {Check, true, false},  {Radio, true, false},      {ChoiceBox, true, true},
    {List, true, true},    {MultiLine, false, false}, {Line, false, false},
    {Image, false, false}, {Combo, true, true},       {Progress, true, false},
    {Tree, true, true},    {Slider, false, false},    {Spin, true, true}};

Look expectedOf(const Row& row)
{
    Look look = disguised();
    if (row.isBlack) look.foreground = black();
    if (row.isOnWhite) look.background = white();
    return look;
}

void expectReset(const Row& row, char flags, const char* attribute)
{
    SCOPED_TRACE(::testing::Message()
                 << "kind " << row.kind << " by " << (attribute ? attribute : "null"));
    disguise(row.kind);
    ASSERT_EQ(lookOfKind(row.kind), disguised());
    guiSetTextAtt(row.kind, flags, attribute);
    EXPECT_EQ(lookOfKind(row.kind), expectedOf(row));
    for (Widget const part : partsOf(row.kind)) EXPECT_EQ(lookOf(part), expectedOf(row));
}

}  // namespace

GUI_TEST(TextAttReset, TheTableHasAllKinds)
{
    std::vector<Kind> kinds;
    for (const Row& row : kRows) kinds.push_back(row.kind);
    EXPECT_EQ(kinds, kAllKinds);
}

GUI_TEST(TextAttReset, OfEachKindByAnEmptyText)
{
    withAllKinds([] {
        for (const Row& row : kRows)
            for (const char* attribute : {static_cast<const char*>(nullptr), ""})
                expectReset(row, 0, attribute);
    });
}

GUI_TEST(TextAttReset, OfEachKindByWhatChangesNoColour)
{
    withAllKinds([] {
        for (const Row& row : kRows)
            for (const char* attribute :
                 {"#", "#zz", "/x", "/#", kMissing, kSmallest, "VEXFIXED", "VEXVARIABLE", "Times"})
                expectReset(row, 31, attribute);
    });
}

// The colour that is not named is not kept from the call before.
GUI_TEST(TextAttReset, OfTheColourThatIsNotNamed)
{
    withAllKinds([] {
        for (const Row& row : kRows) {
            SCOPED_TRACE(row.kind);
            disguise(row.kind);
            guiSetTextAtt(row.kind, 0, "#0000ff");
            EXPECT_EQ(lookOfKind(row.kind).background, expectedOf(row).background);
            disguise(row.kind);
            guiSetTextAtt(row.kind, 0, "/#0000ff");
            EXPECT_EQ(lookOfKind(row.kind).foreground, expectedOf(row).foreground);
        }
    });
}

GUI_TEST(TextAttReset, OfAnEditChangesNothingElse)
{
    runDialog({.build =
                   [] {
                       guiEdit(1, 0, 0, 60, 0, 0);
                       guiEdit(2, 1, 0, 60, 0, 0);
                   },
               .fill =
                   [] {
                       guiSetText(1, "abc");
                       guiSetText(2, "abc");
                   },
               .look =
                   [](Shown) {
                       disguise(1);
                       const Rect place = rectOf(innerOf(1));
                       const auto font = resource<XmFontList>(innerOf(1), XmNfontList);
                       const auto before = screen::grab(innerOf(2));
                       guiSetTextAtt(1, 0, "");
                       EXPECT_EQ(rectOf(innerOf(1)), place);
                       EXPECT_EQ(resource<XmFontList>(innerOf(1), XmNfontList), font);
                       EXPECT_EQ(textOf(innerOf(1)), "abc");
                       EXPECT_EQ(lookOf(innerOf(1)), (Look{black(), white()}));
                       EXPECT_EQ(screen::grab(innerOf(2)), before);
                   }});
}

// Whoever gives a password colours lets it be read.
GUI_TEST(TextAttReset, HiddenEditsCanBeRead)
{
    runDialog({.build = [] { guiEdit(1, 0, 0, 60, 1, 0); },
               .fill =
                   [] {
                       ASSERT_EQ(lookOf(innerOf(1)), (Look{white(), white()}));
                       guiSetTextAtt(1, 0, nullptr);
                       EXPECT_EQ(lookOf(innerOf(1)), (Look{black(), white()}));
                       guiSetTextAtt(1, 0, "#ffffff/#ffffff");
                       const Look look = lookOf(innerOf(1));
                       EXPECT_EQ(look.foreground, look.background);
                   }});
}
