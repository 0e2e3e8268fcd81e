// text_kinds.h: every text of the library's and one of the host's own, each in its turn.

#pragma once

#include <functional>

#include "clipboard_support.h"

namespace kite::testing {

void withTexts(const std::function<void(Widget text)>& body);

}  // namespace kite::testing
