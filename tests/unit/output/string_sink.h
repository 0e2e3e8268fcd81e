// string_sink.h: a text in memory that markup is written to.

#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "output/html_scan.h"

namespace kite::testing {

class StringSink : public HtmlSink {
public:
    std::string text;
    std::vector<long> insertionPoints;  // all that were set
    std::vector<std::string> settings;  // all that were made: "editable 1"

    long lastPosition() override { return static_cast<long>(text.size()); }

    long insert(long position, std::string_view piece) override
    {
        isWithinText = isWithinText && position >= 0 && position <= lastPosition();
        const auto clipped = std::clamp(position, 0L, lastPosition());
        text.insert(static_cast<std::size_t>(clipped), piece);
        return static_cast<long>(piece.size());
    }

    void setInsertionPoint(long position) override { insertionPoints.push_back(position); }
    void setEditable(bool value) override { set("editable", value); }
    void setWordWrap(bool value) override { set("wrap", value); }
    void setHorizontalScroll(bool value) override { set("scroll", value); }

    bool isWithinText = true;  // every insertion has been

private:
    void set(const char* name, bool value)
    {
        settings.push_back(std::string{name} + (value ? " 1" : " 0"));
    }
};

}  // namespace kite::testing
