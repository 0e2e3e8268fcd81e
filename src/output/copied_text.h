// copied_text.h: what the calls that copy to the clipboard have in common.

#pragma once

#include <X11/Intrinsic.h>

#include <cstddef>

namespace kite::output {

// A copied text, or a line with its line end, and a terminating null take as many bytes. What is longer is not
// copied: half of it would look like all of it.
inline constexpr std::size_t kCopyBuffer = 4096;

constexpr bool isCopyable(std::size_t length)
{
    return length < kCopyBuffer;
}

// In whose name the library copies: the frame's shell, else the owner that the host gave. Null without either.
Widget copier();

}  // namespace kite::output
