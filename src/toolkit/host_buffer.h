// host_buffer.h: results copied into a buffer of the host's.

#pragma once

#include <string_view>

namespace kite {

// A buffer must hold at least one byte and the terminating null.
constexpr bool isUsableBuffer(const char* buffer, int size)
{
    return buffer != nullptr && size >= 2;
}

// Copies as much as fits, terminates, and returns the number of bytes copied.
int copyToBuffer(char* buffer, int size, std::string_view text);

}  // namespace kite
