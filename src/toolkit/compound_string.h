// compound_string.h: owns a Motif compound string made from plain text.

#pragma once

#include <Xm/Xm.h>

namespace kite {

class CompoundString {
public:
    // Lines are split at "\n"; a null text is an empty string.
    explicit CompoundString(const char* text);
    ~CompoundString() { XmStringFree(string_); }

    CompoundString(const CompoundString&) = delete;
    CompoundString& operator=(const CompoundString&) = delete;

    XmString get() const { return string_; }

private:
    XmString string_;
};

}  // namespace kite
