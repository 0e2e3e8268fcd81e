// bmp_fuzz.cpp: arbitrary bytes as a BMP file. The rows that come out must be what a sink relies on.

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "images/bmp.h"
#include "images/byte_source.h"

using namespace kite::images;

namespace {

class MemorySource final : public ByteSource {
public:
    explicit MemorySource(std::span<const std::uint8_t> bytes) : bytes_(bytes), rest_(bytes) {}

    std::uint64_t size() const override { return bytes_.size(); }

private:
    std::span<const std::uint8_t> nextChunk() override { return std::exchange(rest_, {}); }

    bool moveTo(std::uint64_t offset) override
    {
        rest_ = bytes_.subspan(static_cast<std::size_t>(std::min<std::uint64_t>(offset, size())));
        return true;
    }

    std::span<const std::uint8_t> bytes_;
    std::span<const std::uint8_t> rest_;
};

// Larger pictures cost time and nothing else is different about them.
constexpr int kMostPixels = 1 << 16;

void require(bool holds)
{
    if (!holds) std::abort();
}

class CheckingSink final : public bmp::Sink {
public:
    bool begin(const bmp::Header& header, const std::vector<Rgb>& palette) override
    {
        require(header.width >= 1 && header.width <= bmp::kLargestSide);
        require(header.height >= 1 && header.height <= bmp::kLargestSide);
        require(palette.size() <= 256 && palette.empty() == !header.isIndexed());
        header_ = header;
        nextRow_ = header.height - 1;
        return header.width * header.height <= kMostPixels;
    }

    void row(int y, std::span<const bmp::Index> indexes) override
    {
        require(header_.isIndexed());
        checkPlace(y, indexes.size());
        for (const bmp::Index index : indexes)
            require(index >= bmp::kUndrawn && index < 1 << header_.bitsPerPixel);
    }

    void row(int y, std::span<const bmp::Bgr> pixels) override
    {
        require(!header_.isIndexed());
        checkPlace(y, pixels.size());
    }

private:
    void checkPlace(int y, std::size_t width)
    {
        require(width == static_cast<std::size_t>(header_.width));
        require(y >= 0 && y <= nextRow_);
        require(header_.isInRuns() || y == nextRow_);
        nextRow_ = y - 1;
    }

    bmp::Header header_;
    int nextRow_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    MemorySource source{{data, size}};
    CheckingSink sink;
    const bool isGood = bmp::decode(source, sink);
    require(!(isGood && source.hasEnded()));
    return 0;
}
