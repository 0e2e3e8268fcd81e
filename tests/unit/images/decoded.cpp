#include "decoded.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace kite::testing {

namespace {

using namespace images;

class PiecewiseSource final : public ByteSource {
public:
    PiecewiseSource(std::string bytes, std::size_t piece) : bytes_(std::move(bytes)), piece_(piece)
    {
    }

    std::uint64_t size() const override { return bytes_.size(); }

private:
    std::span<const std::uint8_t> nextChunk() override
    {
        const std::size_t count = std::min(piece_, bytes_.size() - next_);
        const auto* const begin = reinterpret_cast<const std::uint8_t*>(bytes_.data()) + next_;
        next_ += count;
        return {begin, count};
    }

    bool moveTo(std::uint64_t offset) override
    {
        next_ = std::min<std::size_t>(offset, bytes_.size());
        return true;
    }

    std::string bytes_;
    std::size_t piece_;
    std::size_t next_ = 0;
};

class RecordingSink final : public bmp::Sink {
public:
    bool begin(const bmp::Header& header, const std::vector<Rgb>& palette) override
    {
        hasBegun = true;
        decoded.width = header.width;
        decoded.height = header.height;
        decoded.palette = palette;
        return true;
    }

    void row(int y, std::span<const bmp::Index> indexes) override
    {
        decoded.order.push_back(y);
        decoded.indexes[y].assign(indexes.begin(), indexes.end());
    }

    void row(int y, std::span<const bmp::Bgr> pixels) override
    {
        decoded.order.push_back(y);
        for (const bmp::Bgr& pixel : pixels)
            decoded.colours[y].push_back({pixel.red, pixel.green, pixel.blue});
    }

    Decoded decoded;
    bool hasBegun = false;
};

}  // namespace

std::vector<std::vector<int>> Decoded::rows() const
{
    std::vector<std::vector<int>> all(static_cast<std::size_t>(height));
    for (const auto& [y, row] : indexes) all.at(static_cast<std::size_t>(y)) = row;
    return all;
}

std::optional<Decoded> decode(const std::string& bytes, std::size_t piece)
{
    PiecewiseSource source{bytes, piece};
    RecordingSink sink;
    if (!bmp::decode(source, sink)) return std::nullopt;
    return sink.decoded;
}

bool isRefusedAtOnce(const std::string& bytes)
{
    PiecewiseSource source{bytes, bytes.size()};
    RecordingSink sink;
    return !bmp::decode(source, sink) && !sink.hasBegun;
}

}  // namespace kite::testing
