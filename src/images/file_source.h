// file_source.h: the bytes of a file on disk.

#pragma once

#include <string>
#include <vector>

#include "images/byte_source.h"

namespace kite::images {

class FileSource final : public ByteSource {
public:
    explicit FileSource(const std::string& path);
    ~FileSource() override;

    // Only what is a file can be read: a pipe or a device could keep us waiting for ever.
    bool isOpen() const { return file_ >= 0; }

    std::uint64_t size() const override { return size_; }

private:
    std::span<const std::uint8_t> nextChunk() override;
    bool moveTo(std::uint64_t offset) override;
    void close();

    int file_ = -1;
    std::uint64_t size_ = 0;
    std::vector<std::uint8_t> buffer_;
};

}  // namespace kite::images
