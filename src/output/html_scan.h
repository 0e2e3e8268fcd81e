// html_scan.h: a small part of HTML as plain text with line breaks, and settings of the text.

#pragma once

#include <string_view>

namespace kite {

// What the text is written to.
class HtmlSink {
public:
    virtual ~HtmlSink() = default;

    virtual long lastPosition() = 0;
    // Returns how many positions the text takes.
    virtual long insert(long position, std::string_view text) = 0;
    virtual void setInsertionPoint(long position) = 0;
    virtual void setEditable(bool isEditable) = 0;
    virtual void setWordWrap(bool wraps) = 0;
    virtual void setHorizontalScroll(bool scrolls) = 0;
};

// Adds what the markup says behind the text that the sink has. Of the library's state it has one flag:
// "<pre>" holds until "</pre>", also from one call to the next.
void scanHtml(std::string_view html, HtmlSink& sink);

}  // namespace kite
