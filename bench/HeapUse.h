#pragma once

#include <cstddef>

namespace Bench {

// The bytes that operator new has given out to this thread and not got back, with what malloc()
// adds to each block for itself. Blocks that malloc() keeps for later do not count.
std::size_t HeapUse();

} // namespace Bench
