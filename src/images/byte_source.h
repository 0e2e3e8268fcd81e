// byte_source.h: the bytes of a picture, one after the other, and whether they sufficed.

#pragma once

#include <cstdint>
#include <span>

namespace kite::images {

class ByteSource {
public:
    static constexpr int kEnd = -1;

    ByteSource() = default;
    virtual ~ByteSource() = default;
    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;

    // The next byte, or kEnd.
    int next() { return position_ != chunk_.size() || refill() ? chunk_[position_++] : kEnd; }

    // Fills all of `to`; false when there are not that many.
    bool read(std::span<std::uint8_t> to);

    // A read went past the last byte, or failed.
    bool hasEnded() const { return hasEnded_; }

    virtual std::uint64_t size() const = 0;

    // Goes on at this offset, which may lie behind the end.
    bool seek(std::uint64_t offset);

protected:
    // The bytes that follow those given before; none at the end. They stay until the next call.
    virtual std::span<const std::uint8_t> nextChunk() = 0;
    virtual bool moveTo(std::uint64_t offset) = 0;

private:
    bool refill();

    std::span<const std::uint8_t> chunk_;
    std::uint64_t chunkOffset_ = 0;  // of the chunk in the file
    std::size_t position_ = 0;       // in the chunk
    bool hasEnded_ = false;
};

}  // namespace kite::images
