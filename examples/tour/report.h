// report.h: what came of a command, in the status line.

#pragma once

#include <kitegui.h>

#include <string>

namespace tour {

inline void report(const std::string& text)
{
    guiSetStatusLine(text.c_str());
}

inline void report(const char* what, int result)
{
    report(std::string{what} + " answered " + std::to_string(result));
}

}  // namespace tour
