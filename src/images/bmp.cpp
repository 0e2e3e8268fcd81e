#include "images/bmp.h"

#include "images/bmp_rle.h"
#include "images/bmp_rows.h"

namespace kite::images::bmp {

bool decode(ByteSource& source, Sink& sink)
{
    const std::optional<Header> header = readHeader(source);
    if (!header) return false;
    std::vector<Rgb> palette;
    if (header->isIndexed()) {
        std::optional<std::vector<Rgb>> read = readPalette(*header, source);
        if (!read) return false;
        palette = *std::move(read);
    }
    // Before anything is made for it: a few bytes can claim a picture of gigabytes.
    if (header->dataOffset + leastDataSize(*header) > source.size()) return false;
    if (!source.seek(header->dataOffset) || !sink.begin(*header, palette)) return false;
    return header->isInRuns() ? decodeRuns(*header, source, sink)
                              : decodeRows(*header, source, sink);
}

}  // namespace kite::images::bmp
