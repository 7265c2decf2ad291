#include "HeapUse.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

namespace {

thread_local std::size_t use = 0;

std::size_t SizeOf(void *block)
{
    return malloc_usable_size(block) + sizeof(std::size_t);
}

void Free(void *block)
{
    if (block)
        use -= SizeOf(block);
    std::free(block);
}

} // namespace

std::size_t Bench::HeapUse()
{
    return use;
}

void *operator new(std::size_t size)
{
    void *block = std::malloc(size);
    if (!block)
        throw std::bad_alloc();
    use += SizeOf(block);
    return block;
}

void operator delete(void *block) noexcept
{
    Free(block);
}

void operator delete(void *block, std::size_t) noexcept
{
    Free(block);
}
