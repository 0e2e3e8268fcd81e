#include "images/file_source.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

namespace kite::images {

namespace {

constexpr std::size_t kChunk = std::size_t{64} * 1024;

}  // namespace

FileSource::FileSource(const std::string& path)
    : file_(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK))
{
    struct stat status {};
    if (file_ < 0) return;
    if (fstat(file_, &status) != 0 || !S_ISREG(status.st_mode)) {
        close();
        return;
    }
    size_ = static_cast<std::uint64_t>(status.st_size);
    buffer_.resize(std::clamp<std::size_t>(size_, 1, kChunk));
}

FileSource::~FileSource()
{
    close();
}

void FileSource::close()
{
    if (const int file = std::exchange(file_, -1); file >= 0) ::close(file);
}

std::span<const std::uint8_t> FileSource::nextChunk()
{
    ssize_t count = 0;
    do count = ::read(file_, buffer_.data(), buffer_.size());
    while (count < 0 && errno == EINTR);
    return {buffer_.data(), count > 0 ? static_cast<std::size_t>(count) : 0};
}

bool FileSource::moveTo(std::uint64_t offset)
{
    return lseek(file_, static_cast<off_t>(offset), SEEK_SET) >= 0;
}

}  // namespace kite::images
