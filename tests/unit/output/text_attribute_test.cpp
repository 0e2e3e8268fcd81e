#include "output/text_attribute.h"

#include <gtest/gtest.h>

#include <ostream>

using kite::parseTextAttribute;
using kite::TextAttribute;
using kite::WideColour;
using Kind = TextAttribute::Kind;

namespace {

constexpr unsigned short kFull = 65025;
constexpr unsigned short kUnread = 65281;  // -1 times 255, in 16 bits

constexpr WideColour kRed{kFull, 0, 0};
constexpr WideColour kNavy{0, 0, 0x80 * 255};
constexpr WideColour kBlack{0, 0, 0};
constexpr WideColour kWhite{kFull, kFull, kFull};
constexpr std::nullopt_t kNone = std::nullopt;

std::string nameFor(int flags, const std::string& text)
{
    const TextAttribute attribute = parseTextAttribute(flags, text.c_str());
    EXPECT_EQ(attribute.kind, Kind::NamedFont) << text;
    EXPECT_FALSE(attribute.foreground || attribute.background) << text;
    return attribute.fontName;
}

}  // namespace

namespace kite {

static std::ostream& operator<<(std::ostream& out, const WideColour& colour)
{
    return out << colour.red << ' ' << colour.green << ' ' << colour.blue;
}

}  // namespace kite

TEST(TextAttribute, NothingIsAskedForByAnEmptyText)
{
    EXPECT_EQ(parseTextAttribute(31, ""), TextAttribute{});
    EXPECT_EQ(parseTextAttribute(31, nullptr), TextAttribute{});
    EXPECT_EQ(TextAttribute{}.kind, Kind::Nothing);
}

TEST(TextAttribute, Colours)
{
    struct {
        const char* text;
        std::optional<WideColour> foreground;
        std::optional<WideColour> background;
    } const rows[] = {
        {"#ff0000", kRed, kNone},          {"#FF0000", kRed, kNone},
        {"/#000080", kNone, kNavy},        {"#000000/#ffffff", kBlack, kWhite},
        {"#ff0000/#000080", kRed, kNavy},  {"#010203", WideColour{255, 510, 765}, kNone},
        {"#ff0000 and more", kRed, kNone}, {"#ff0000ff", kRed, kNone},
        {"#ff0000 /#000080", kRed, kNone}, {"#ff0000//#000080", kRed, kNone},
        {"#ff0000/000080", kRed, kNone},   {"/#000080/#ff0000", kNone, kNavy},
        {"#/#000080", kNone, kNone},  // the first one is missing, and reading has ended
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        const TextAttribute attribute = parseTextAttribute(0, row.text);
        EXPECT_EQ(attribute.kind, Kind::Colours);
        EXPECT_EQ(attribute.foreground, row.foreground);
        EXPECT_EQ(attribute.background, row.background);
        EXPECT_EQ(attribute.fontName, "");
    }
}

TEST(TextAttribute, AColourIsReadAsFarAsItGoes)
{
    struct {
        const char* text;
        std::optional<WideColour> colour;
    } const rows[] = {
        {"#", kNone},
        {"##", kNone},
        {"#red", kNone},
        {"#00", kNone},    // 0 - 1 - 1
        {"#0000", kNone},  // 0 + 0 - 1
        {"#01", kNone},
        {"#02", WideColour{510, kUnread, kUnread}},
        {"#ff", WideColour{kFull, kUnread, kUnread}},
        {"#0001", WideColour{0, 255, kUnread}},
        {"#ffxx00", WideColour{kFull, kUnread, kUnread}},
        {"#f", WideColour{15 * 255, kUnread, kUnread}},
        {"#fff", WideColour{kFull, 15 * 255, kUnread}},
        {"# f f f", WideColour{15 * 255, 15 * 255, 15 * 255}},  // blanks before a number
        {"#-1-1-1", kNone},
        {"#-1-1ff", WideColour{kUnread, kUnread, kFull}},
        {"#+1+2+3", WideColour{255, 510, 765}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(parseTextAttribute(0, row.text).foreground, row.colour);
        EXPECT_EQ(parseTextAttribute(0, row.text).background, kNone);
        const std::string behind = '/' + std::string{row.text};
        EXPECT_EQ(parseTextAttribute(0, behind.c_str()).background, row.colour);
        EXPECT_EQ(parseTextAttribute(0, behind.c_str()).foreground, kNone);
        const std::string both = "#010203/" + std::string{row.text};
        EXPECT_EQ(parseTextAttribute(0, both.c_str()).background, row.colour);
    }
}

TEST(TextAttribute, WhatBeginsAsAColourIsNoFont)
{
    for (const char* text : {"#", "/", "/x", "//#ff0000", "#Times", "/VEXFIXED", "/-*-courier-*"}) {
        SCOPED_TRACE(text);
        const TextAttribute attribute = parseTextAttribute(1, text);
        EXPECT_EQ(attribute.kind, Kind::Colours);
        EXPECT_FALSE(attribute.foreground || attribute.background);
    }
}

TEST(TextAttribute, XFontNamesAreTakenAsTheyAre)
{
    for (const std::string name : {"-misc-fixed-medium-r-normal--14-110-100-100-c-*-iso8859-1",
                                   "*courier*", "-", "*", "- x", "*Courier New", "-VEXFIXED"})
        for (const int flags : {0, 1, 31, -1}) EXPECT_EQ(nameFor(flags, name), name);
}

TEST(TextAttribute, TagsAreExact)
{
    EXPECT_EQ(parseTextAttribute(0, "VEXFIXED").kind, Kind::FixedFont);
    EXPECT_EQ(parseTextAttribute(31, "VEXVARIABLE").kind, Kind::VariableFont);
    EXPECT_EQ(nameFor(0, "vexfixed"), "-*-vexfixed-medium-r-normal--14-*");
    EXPECT_EQ(nameFor(0, "VEXFIXED "), "-*-VEXFIXED -medium-r-normal--14-*");
    EXPECT_EQ(nameFor(0, "VEXVARIABL"), "-*-VEXVARIABL-medium-r-normal--14-*");
}

TEST(TextAttribute, FamiliesOfOtherNames)
{
    struct {
        const char* family;
        const char* xFamily;
    } const rows[] = {{"Courier New", "courier"},
                      {"Arial", "helvetica"},
                      {"courier new", "courier new"},
                      {"COURIER NEW", "COURIER NEW"},
                      {"arial", "arial"},
                      {"Arial ", "Arial "},
                      {"Courier New Bold", "Courier New Bold"},
                      {"Times", "Times"},
                      {"x", "x"},
                      {" #ff0000", " #ff0000"},
                      {"\xE4", "\xE4"}};
    for (const auto& row : rows)
        EXPECT_EQ(nameFor(0, row.family),
                  "-*-" + std::string{row.xFamily} + "-medium-r-normal--14-*");
}

TEST(TextAttribute, EveryCombinationOfFlags)
{
    const char* const rows[] = {"-medium-r-normal--14-*",        "-bold-r-normal--14-*",
                                "-medium-i-normal--14-*",        "-bold-i-normal--14-*",
                                "-medium-r-underline--14-*",     "-bold-r-underline--14-*",
                                "-medium-i-underline--14-*",     "-bold-i-underline--14-*",
                                "-medium-r-normal--18-*",        "-bold-r-normal--18-*",
                                "-medium-i-normal--18-*",        "-bold-i-normal--18-*",
                                "-medium-r-underline--18-*",     "-bold-r-underline--18-*",
                                "-medium-i-underline--18-*",     "-bold-i-underline--18-*",
                                "-medium-r-normal--10-*",        "-bold-r-normal--10-*",
                                "-medium-i-normal--10-*",        "-bold-i-normal--10-*",
                                "-medium-r-underline--10-*",     "-bold-r-underline--10-*",
                                "-medium-i-underline--10-*",     "-bold-i-underline--10-*",
                                "-medium-r-normal--18-*10-*",    "-bold-r-normal--18-*10-*",
                                "-medium-i-normal--18-*10-*",    "-bold-i-normal--18-*10-*",
                                "-medium-r-underline--18-*10-*", "-bold-r-underline--18-*10-*",
                                "-medium-i-underline--18-*10-*", "-bold-i-underline--18-*10-*"};
    int flags = 0;
    for (const char* const rest : rows) {
        const std::string expected = std::string{"-*-courier"} + rest;
        EXPECT_EQ(nameFor(flags, "Courier New"), expected);
        EXPECT_EQ(nameFor(flags | 32 | 64, "Courier New"), expected) << "other flags mean nothing";
        EXPECT_EQ(nameFor(flags - 128, "Courier New"), expected) << "nor does the sign";
        ++flags;
    }
    EXPECT_EQ(flags, 32);
}

TEST(TextAttribute, LongFamiliesAreNotCut)
{
    const std::string family(100'000, 'f');
    EXPECT_EQ(nameFor(0, family), "-*-" + family + "-medium-r-normal--14-*");
}
