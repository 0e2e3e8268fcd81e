// no_heap.h: a program that links this decides when malloc and realloc have no large pieces.

#pragma once

#include <cstddef>

namespace kite::testing {

inline constexpr std::size_t kLargePiece = 100000;  // bytes

// So many pieces of that size and more can still be had, and none after them.
class HeapEnds {
public:
    explicit HeapEnds(int after = 0);
    ~HeapEnds();
    HeapEnds(const HeapEnds&) = delete;
    HeapEnds& operator=(const HeapEnds&) = delete;

    bool wasMet() const;  // by a request in vain
};

}  // namespace kite::testing
