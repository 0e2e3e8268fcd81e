#include "no_memory.h"

#include <cstdlib>
#include <new>

namespace {

bool isExhausted = false;

void* allocate(std::size_t size)
{
    if (isExhausted && size >= kite::testing::kLarge) return nullptr;
    return std::malloc(size ? size : 1);
}

}  // namespace

kite::testing::Exhausted::Exhausted()
{
    isExhausted = true;
}

kite::testing::Exhausted::~Exhausted()
{
    isExhausted = false;
}

// This program is asked for all that the library takes.
void* operator new(std::size_t size)
{
    if (void* const piece = allocate(size)) return piece;
    throw std::bad_alloc{};
}

void* operator new[](std::size_t size)
{
    return operator new(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size);
}

void operator delete(void* piece) noexcept
{
    std::free(piece);
}

void operator delete[](void* piece) noexcept
{
    std::free(piece);
}

void operator delete(void* piece, std::size_t) noexcept
{
    std::free(piece);
}

void operator delete[](void* piece, std::size_t) noexcept
{
    std::free(piece);
}
