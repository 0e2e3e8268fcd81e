// output_support.h: what the tests of the Output area share.

#pragma once

#include <Xm/Text.h>

#include <string>

#include "gui_test.h"

namespace kite::testing {

Widget outputText();
std::string output();

// By plain calls of the toolkit, past the library.
void setOutput(const std::string& text);
void selectOutput(XmTextPosition left, XmTextPosition right);

struct Selected {
    XmTextPosition left = 0;
    XmTextPosition right = 0;

    bool operator==(const Selected&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Selected& selected);

inline constexpr Selected kNothing{-1, -1};
Selected outputSelection();

XmTextPosition insertionPoint();

// A line by guiOutputLine; the result in brackets when it is no line.
std::string line(int number);

// A whole file; empty when there is none.
std::string contentsOf(const std::string& path);

}  // namespace kite::testing
