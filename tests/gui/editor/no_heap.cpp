#include "no_heap.h"

#include <cstdlib>

namespace {

constexpr int kEndless = -1;

int left = kEndless;
bool isMet = false;

bool isRefused(std::size_t size)
{
    if (left == kEndless || size < kite::testing::kLargePiece) return false;
    if (left > 0) return --left, false;
    return isMet = true;
}

}  // namespace

kite::testing::HeapEnds::HeapEnds(int after)
{
    isMet = false;
    left = after;
}

kite::testing::HeapEnds::~HeapEnds()
{
    left = kEndless;
}

bool kite::testing::HeapEnds::wasMet() const
{
    return isMet;
}

// The C library's own, behind the names that the library under test is linked to.
extern "C" {

void* __libc_malloc(std::size_t size);                // NOLINT
void* __libc_realloc(void* piece, std::size_t size);  // NOLINT

void* malloc(std::size_t size)
{
    return isRefused(size) ? nullptr : __libc_malloc(size);
}

void* realloc(void* piece, std::size_t size)
{
    return isRefused(size) ? nullptr : __libc_realloc(piece, size);
}
}
