// item_number.h: numbers as the texts of items. No X here.

#pragma once

#include <string>

namespace kite {

// With up to 14 digits; small numbers are written out, to eight decimals, where others have an exponent.
std::string itemNumber(double value);

}  // namespace kite
