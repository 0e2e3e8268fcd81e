// xt_string.h: owns a plain string that the toolkit allocated.

#pragma once

#include <X11/Intrinsic.h>

#include <memory>

namespace kite {

struct XtStringDeleter {
    void operator()(char* text) const { XtFree(text); }
};

using XtString = std::unique_ptr<char, XtStringDeleter>;

}  // namespace kite
