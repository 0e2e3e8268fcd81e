// text_copy.h: the whole text of a text widget.

#pragma once

#include <X11/Intrinsic.h>

#include <memory>
#include <string_view>

namespace kite {

struct TextCopy {
    std::unique_ptr<char[]> bytes;  // null-terminated; null: there was no memory for it
    std::size_t length = 0;

    std::string_view view() const { return {bytes.get(), length}; }
};

TextCopy copyOfText(Widget text);

}  // namespace kite
