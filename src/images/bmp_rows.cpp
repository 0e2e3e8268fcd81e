#include "images/bmp_rows.h"

#include <cstring>

namespace kite::images::bmp {

namespace {

using Bytes = std::span<const std::uint8_t>;

// The leftmost pixel is in the highest bits of a byte.
void unpack(Bytes packed, int bits, std::span<Index> indexes)
{
    const std::size_t perByte = 8U / static_cast<unsigned>(bits);
    const int mask = (1 << bits) - 1;
    for (std::size_t x = 0; x < indexes.size(); ++x) {
        const int shift = 8 - bits * static_cast<int>(x % perByte + 1);
        indexes[x] = static_cast<Index>(packed[x / perByte] >> shift & mask);
    }
}

class RowReader {
public:
    RowReader(const Header& header, Sink& sink)
        : bits_(header.bitsPerPixel), sink_(sink), indexes_(sizeOf(header, header.isIndexed())),
          pixels_(sizeOf(header, !header.isIndexed()))
    {
    }

    void pass(int y, Bytes packed)
    {
        if (indexes_.empty()) {
            std::memcpy(pixels_.data(), packed.data(), pixels_.size() * sizeof(Bgr));
            sink_.row(y, std::span<const Bgr>{pixels_});
            return;
        }
        if (bits_ == 8)
            for (std::size_t x = 0; x < indexes_.size(); ++x) indexes_[x] = packed[x];
        else
            unpack(packed, bits_, indexes_);
        sink_.row(y, std::span<const Index>{indexes_});
    }

private:
    static std::size_t sizeOf(const Header& header, bool isUsed)
    {
        return isUsed ? static_cast<std::size_t>(header.width) : 0;
    }

    int bits_;
    Sink& sink_;
    std::vector<Index> indexes_;
    std::vector<Bgr> pixels_;  // one of the two is empty
};

}  // namespace

static_assert(sizeof(Bgr) == 3, "rows of 24 bits are copied as they are");

bool decodeRows(const Header& header, ByteSource& source, Sink& sink)
{
    std::vector<std::uint8_t> packed(static_cast<std::size_t>(rowBytes(header)));
    RowReader reader{header, sink};
    for (int y = header.height - 1; y >= 0; --y) {
        if (!source.read(packed)) return false;
        reader.pass(y, packed);
    }
    return true;
}

}  // namespace kite::images::bmp
