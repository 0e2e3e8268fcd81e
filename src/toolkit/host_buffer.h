// host_buffer.h: texts that the host passes, and results copied into a buffer of its.

#pragma once

#include <string_view>

namespace kite {

// For texts of which null means an empty one.
constexpr const char* orEmpty(const char* text)
{
    return text ? text : "";
}

// A buffer must hold at least one byte and the terminating null.
constexpr bool isUsableBuffer(const char* buffer, int size)
{
    return buffer != nullptr && size >= 2;
}

// Copies as much as fits, terminates, and returns the number of bytes copied.
int copyToBuffer(char* buffer, int size, std::string_view text);

}  // namespace kite
