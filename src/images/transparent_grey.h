// transparent_grey.h: what shows through the grey 191, 191, 191 of a picture.

#pragma once

#include <cstdint>
#include <optional>

namespace kite::images {

// The menu bar's background at this moment; none while there is no menu bar.
std::optional<std::uint32_t> transparentGrey();

}  // namespace kite::images
