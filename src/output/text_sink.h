// text_sink.h: markup written to a text widget.

#pragma once

#include <X11/Intrinsic.h>

#include <optional>

#include "output/html_scan.h"

namespace kite::output {

class TextSink : public HtmlSink {
public:
    explicit TextSink(Widget text) : text_(text) {}

    long lastPosition() override;
    long insert(long position, std::string_view piece) override;
    void setInsertionPoint(long position) override;
    void setEditable(bool isEditable) override { editable_ = isEditable; }
    void setWordWrap(bool wraps) override { wraps_ = wraps; }
    void setHorizontalScroll(bool scrolls) override { scrolls_ = scrolls; }

    // The settings last made. Each would lay out and paint all of the text, so it is done once.
    void applySettings();

private:
    void applyWordWrap(bool wraps);

    Widget text_;
    std::optional<bool> editable_, wraps_, scrolls_;  // null: as it is
};

}  // namespace kite::output
