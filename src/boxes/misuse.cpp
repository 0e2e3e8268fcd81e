#include "boxes/misuse.h"

#include <kitegui.h>

#include <cstdarg>
#include <cstdio>

namespace kite {

namespace {

constexpr int kLongestMessage = 2048;  // a path and a sentence

}  // namespace

int reportMisuse(const char* format, ...)
{
    char message[kLongestMessage];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(message, sizeof message, format, arguments);
    va_end(arguments);
    guiErrorBox(message);
    return GUI_FAILED;
}

}  // namespace kite
