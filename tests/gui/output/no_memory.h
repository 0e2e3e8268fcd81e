// no_memory.h: a program that links this decides when there is no memory for large pieces.

#pragma once

#include <cstddef>

namespace kite::testing {

inline constexpr std::size_t kLarge = 100000;  // bytes

// There is none for pieces of that size and more.
class Exhausted {
public:
    Exhausted();
    ~Exhausted();
    Exhausted(const Exhausted&) = delete;
    Exhausted& operator=(const Exhausted&) = delete;
};

}  // namespace kite::testing
