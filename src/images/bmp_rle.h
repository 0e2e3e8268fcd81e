// bmp_rle.h: the run-length encoded pixels of a BMP file.

#pragma once

#include "images/bmp.h"

namespace kite::images::bmp {

// False when the file ends before its end-of-bitmap escape.
bool decodeRuns(const Header& header, ByteSource& source, Sink& sink);

}  // namespace kite::images::bmp
