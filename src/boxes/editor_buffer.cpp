#include "boxes/editor_buffer.h"

#include <algorithm>
#include <cstdlib>

namespace kite {

namespace {

constexpr std::size_t kReserve = 4096;  // bytes that the buffer grows by beyond what it needs

}  // namespace

void EditorBuffer::reset()
{
    std::free(text_);
    text_ = nullptr;
    capacity_ = length_ = position_ = 0;
}

bool EditorBuffer::makeRoomFor(std::size_t size)
{
    if (size <= capacity_) return true;
    auto* const grown = static_cast<char*>(std::realloc(text_, size + kReserve));
    if (!grown) return false;
    text_ = grown;
    capacity_ = size + kReserve;
    return true;
}

bool EditorBuffer::append(std::string_view line)
{
    if (!makeRoomFor(length_ + line.size() + 2)) return false;
    length_ += line.copy(text_ + length_, line.size());
    text_[length_++] = '\n';
    text_[length_] = '\0';
    return true;
}

bool EditorBuffer::assign(std::string_view text)
{
    reset();
    auto* const copy = static_cast<char*>(std::malloc(text.size() + 1));
    if (!copy) return false;
    text_ = copy;
    capacity_ = text.size() + 1;
    length_ = text.copy(text_, text.size());
    text_[length_] = '\0';
    return true;
}

int EditorBuffer::lines() const
{
    if (length_ == 0) return 0;
    const auto ends = std::count(text_, text_ + length_, '\n');
    return static_cast<int>(ends) + (text_[length_ - 1] == '\n' ? 0 : 1);
}

int EditorBuffer::read(char* line, int size)
{
    int length = 0;
    while (position_ < length_ && length < size - 1) {
        const char byte = text_[position_++];
        if (byte == '\n') break;
        if (byte != '\r') line[length++] = byte;
    }
    line[length] = '\0';
    if (position_ >= length_) reset();
    return length;
}

}  // namespace kite
