// decoded.h: what the reader of BMP files makes of some bytes.

#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "bmp_file.h"
#include "images/bmp.h"

namespace kite::testing {

struct Decoded {
    int width = 0;
    int height = 0;
    std::vector<images::Rgb> palette;
    std::map<int, std::vector<int>> indexes;          // rows by y; undrawn pixels are -1
    std::map<int, std::vector<images::Rgb>> colours;  // rows by y
    std::vector<int> order;                           // the y of each row, as they came

    // All rows from the top; those that did not come are empty.
    std::vector<std::vector<int>> rows() const;
};

// None when the reader refuses it. The bytes reach the reader in pieces of this size.
std::optional<Decoded> decode(const std::string& bytes, std::size_t piece = 1 << 20);

// True when the reader refuses the bytes before anything is made for the picture.
bool isRefusedAtOnce(const std::string& bytes);

}  // namespace kite::testing
