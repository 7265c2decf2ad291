#include "HeapLimit.h"

#include <sanitizer/allocator_interface.h>

#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace Fuzz {

namespace {

constexpr std::int64_t none = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t allowance = std::int64_t(256) << 20;

std::atomic<std::int64_t> allocated = 0;
std::atomic<std::int64_t> limit = none;

void OnAllocation(const volatile void *, std::size_t size)
{
    allocated += static_cast<std::int64_t>(size);
    if (allocated <= limit)
        return;
    limit = none; // to report it takes memory, too
    std::fputs("ERROR: an input takes more than 256 MB\n", stderr);
    std::abort();
}

void OnRelease(const volatile void *memory)
{
    allocated -= static_cast<std::int64_t>(
            __sanitizer_get_allocated_size(const_cast<const void *>(memory)));
}

} // namespace

void CountHeap()
{
    __sanitizer_install_malloc_and_free_hooks(OnAllocation, OnRelease);
}

HeapLimit::HeapLimit()
{
    limit = allocated + allowance;
}

HeapLimit::~HeapLimit()
{
    limit = none;
}

} // namespace Fuzz
