#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace Bench {

using Nanoseconds = std::chrono::duration<double, std::nano>;

template<class Work>
Nanoseconds Elapsed(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::steady_clock::now() - start;
}

inline double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

// What two ways of doing the same take: the medians, and the median of the ratios of each round.
struct Comparison
{
    double ours = 0; // nanoseconds or bytes
    double other = 0;
    double ratio = 0;
};

constexpr int usualRounds = 9;

// Runs ours() and other() by turns, so that a machine that becomes slower slows both down. Each
// returns what it has measured.
template<class Ours, class Other>
Comparison Compare(Ours ours, Other other, int rounds = usualRounds)
{
    std::vector<double> ourFigures;
    std::vector<double> otherFigures;
    std::vector<double> ratios;
    for (int i = 0; i < rounds; ++i) {
        ourFigures.push_back(Nanoseconds(ours()).count());
        otherFigures.push_back(Nanoseconds(other()).count());
        ratios.push_back(ourFigures.back() / otherFigures.back());
    }
    return { Median(ourFigures), Median(otherFigures), Median(ratios) };
}

} // namespace Bench
