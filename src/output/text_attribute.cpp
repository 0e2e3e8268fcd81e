#include "output/text_attribute.h"

#include <cstdio>
#include <string_view>

namespace kite {

namespace {

using Kind = TextAttribute::Kind;

// ---- colours --------------------------------------------------------------------------------

constexpr unsigned kUnread = ~0U;  // -1, as a number with a sign

struct Components {
    unsigned red = kUnread;
    unsigned green = kUnread;
    unsigned blue = kUnread;

    // Also with one component of three, unless that is very dark.
    bool isGiven() const { return static_cast<int>(red + green + blue) >= 0; }
};

// Not 257: "ff" is not quite the brightest, and hosts have chosen their colours by what they saw.
constexpr unsigned kWidening = 255;

unsigned short widened(unsigned component)
{
    return static_cast<unsigned short>(component * kWidening);
}

std::optional<WideColour> colourOf(const Components& read)
{
    if (!read.isGiven()) return std::nullopt;
    return WideColour{widened(read.red), widened(read.green), widened(read.blue)};
}

// As far as sscanf reads it.
TextAttribute colours(const char* text)
{
    Components front;
    Components back;
    if (*text == '#')
        std::sscanf(text, "#%2x%2x%2x/#%2x%2x%2x", &front.red, &front.green, &front.blue, &back.red,
                    &back.green, &back.blue);
    else
        std::sscanf(text, "/#%2x%2x%2x", &back.red, &back.green, &back.blue);
    return {Kind::Colours, colourOf(front), colourOf(back), {}};
}

// ---- fonts ----------------------------------------------------------------------------------

TextAttribute font(std::string name)
{
    return {Kind::NamedFont, std::nullopt, std::nullopt, std::move(name)};
}

// Families that are known by another name elsewhere.
std::string_view xFamily(std::string_view family)
{
    if (family == "Courier New") return "courier";
    if (family == "Arial") return "helvetica";
    return family;
}

struct Piece {
    int flag;
    const char* set;
    const char* clear;
};

// Underlined fonts are looked for under the width's name. Sizes may stand one behind the other.
constexpr Piece kPieces[] = {{1, "-bold", "-medium"},
                             {2, "-i", "-r"},
                             {4, "-underline--", "-normal--"},
                             {8, "18-*", ""},
                             {16, "10-*", ""}};
constexpr int kAnySize = 8 | 16;

std::string nameOfFamily(int flags, std::string_view family)
{
    std::string name = "-*-";
    name += xFamily(family);
    for (const Piece& piece : kPieces) name += flags & piece.flag ? piece.set : piece.clear;
    if (!(flags & kAnySize)) name += "14-*";
    return name;
}

}  // namespace

TextAttribute parseTextAttribute(int flags, const char* text)
{
    if (!text || !*text) return {};
    switch (*text) {
    case '#':
    case '/': return colours(text);
    case '-':
    case '*': return font(text);
    default: break;
    }
    const std::string_view given = text;
    if (given == "VEXFIXED") return {Kind::FixedFont, {}, {}, {}};
    if (given == "VEXVARIABLE") return {Kind::VariableFont, {}, {}, {}};
    return font(nameOfFamily(flags, given));
}

}  // namespace kite
