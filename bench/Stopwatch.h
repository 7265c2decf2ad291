#pragma once

#include <chrono>

namespace Bench {

// What work takes: milliseconds or, where callgrind runs the process, millions of instructions.
using Cost = double;

// Whether callgrind runs the process.
bool IsCounting();

// Whether the program was built to be counted, for which it needs a header of valgrind.
bool CanCount();

// Measures from its making on. In a process that is counted each reading leaves a file of the
// instructions since the making or the last reading, callgrind.out.PID.NUMBER, in the current
// folder.
class Stopwatch
{
public:
    Stopwatch();
    Stopwatch(const Stopwatch &) = delete;
    Stopwatch &operator=(const Stopwatch &) = delete;

    Cost Read();

private:
    Cost ReadCount();

    std::chrono::steady_clock::time_point m_start;
    Cost m_count = 0;
};

template<class Work>
Cost CostOf(Work work)
{
    Stopwatch stopwatch;
    work();
    return stopwatch.Read();
}

} // namespace Bench
