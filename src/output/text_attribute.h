// text_attribute.h: what a host asks for with an attribute string: colours, or a font. No X here.

#pragma once

#include <optional>
#include <string>

namespace kite {

// As X takes them: 16 bits for each component.
struct WideColour {
    unsigned short red, green, blue;

    bool operator==(const WideColour&) const = default;
};

struct TextAttribute {
    enum class Kind { Nothing, Colours, FixedFont, VariableFont, NamedFont };

    Kind kind = Kind::Nothing;
    std::optional<WideColour> foreground;  // of Colours; those that are not given stay as they are
    std::optional<WideColour> background;
    std::string fontName;  // of NamedFont: an X font name or pattern

    bool operator==(const TextAttribute&) const = default;
};

// The flags are for font families. A null string counts as empty.
TextAttribute parseTextAttribute(int flags, const char* text);

}  // namespace kite
