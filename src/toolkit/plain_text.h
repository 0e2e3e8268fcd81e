// plain_text.h: what a compound string says.

#pragma once

#include <Xm/Xm.h>

#include <string>

namespace kite {

// Lines are divided by "\n". Empty for null.
std::string plainText(XmString string);

// A compound string that the toolkit hands out as a copy, as plain text.
std::string plainTextOf(Widget widget, const char* resourceName);

}  // namespace kite
