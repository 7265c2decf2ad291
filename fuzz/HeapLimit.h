#pragma once

namespace Fuzz {

// Counts what the process allocates from now on.
void CountHeap();

// While it lives, the process may allocate 256 MB more than when it was made; what is more than
// that ends the process. The memory that the process takes as a whole says nothing of one input, as
// sanitizers and libFuzzer take more and more of it in the course of a run.
class HeapLimit
{
public:
    HeapLimit();
    ~HeapLimit();

    HeapLimit(const HeapLimit &) = delete;
    HeapLimit &operator=(const HeapLimit &) = delete;
};

} // namespace Fuzz
