#include "images/byte_source.h"

#include <algorithm>
#include <cstring>

namespace kite::images {

bool ByteSource::refill()
{
    if (hasEnded_) return false;
    chunkOffset_ += chunk_.size();
    chunk_ = nextChunk();
    position_ = 0;
    hasEnded_ = chunk_.empty();
    return !hasEnded_;
}

bool ByteSource::read(std::span<std::uint8_t> to)
{
    while (!to.empty()) {
        if (position_ == chunk_.size() && !refill()) return false;
        const std::size_t count = std::min(to.size(), chunk_.size() - position_);
        std::memcpy(to.data(), chunk_.data() + position_, count);
        position_ += count;
        to = to.subspan(count);
    }
    return true;
}

// Most pictures fit into one chunk, which need not be read again.
bool ByteSource::seek(std::uint64_t offset)
{
    if (offset >= chunkOffset_ && offset - chunkOffset_ <= chunk_.size()) {
        position_ = static_cast<std::size_t>(offset - chunkOffset_);
        return true;
    }
    chunk_ = {};
    chunkOffset_ = offset;
    position_ = 0;
    return moveTo(offset);
}

}  // namespace kite::images
