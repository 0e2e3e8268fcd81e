// bmp_rows.h: the uncompressed pixels of a BMP file.

#pragma once

#include "images/bmp.h"

namespace kite::images::bmp {

// False when the file ends before the last padding byte.
bool decodeRows(const Header& header, ByteSource& source, Sink& sink);

}  // namespace kite::images::bmp
