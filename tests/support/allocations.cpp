#include "support/allocations.h"

#include <cstdlib>
#include <new>

std::int64_t brindor::tests::allocations = 0;

void* operator new(std::size_t size)
{
    ++brindor::tests::allocations;
    void* memory = std::malloc(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
