#include "toolkit/host_buffer.h"

#include <cstddef>

namespace kite {

int copyToBuffer(char* buffer, int size, std::string_view text)
{
    const std::size_t length = text.copy(buffer, static_cast<std::size_t>(size) - 1);
    buffer[length] = '\0';
    return static_cast<int>(length);
}

}  // namespace kite
