#pragma once

#include "Stopwatch.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

namespace Bench {

inline double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

// What the figure of a comparison is in, and what both sides are in.
struct Unit
{
    std::string_view figure;
    std::string_view sides;
};

constexpr Unit ratioUnit { "x", "ms" };
constexpr Unit millisecondUnit { "ms", "ms" };
constexpr Unit instructionUnit { "x", "millions of instructions" };
constexpr Unit byteUnit { "bytes", "bytes" };

// What two ways of doing the same take, and the figure that is to reach its aim.
struct Comparison
{
    double ours = 0;
    double other = 0;
    double figure = 0;
    Unit unit = ratioUnit;
};

// Rounds in each of which both ways were measured.
class Rounds
{
public:
    void Add(Cost ours, Cost other)
    {
        m_ours.push_back(ours);
        m_others.push_back(other);
        m_ratios.push_back(ours / other);
    }

    int Count() const { return static_cast<int>(m_ours.size()); }
    Cost Ours(int round) const { return m_ours[static_cast<std::size_t>(round)]; }
    Cost Other(int round) const { return m_others[static_cast<std::size_t>(round)]; }

    // The medians, and the median of the ratios of each round.
    Comparison Compared() const { return { Median(m_ours), Median(m_others), Median(m_ratios) }; }

private:
    std::vector<Cost> m_ours;
    std::vector<Cost> m_others;
    std::vector<double> m_ratios;
};

constexpr int usualRounds = 9;

// Runs ours() and other() by turns, so that a machine that becomes slower slows both down. Each
// returns what it has measured.
template<class Ours, class Other>
Rounds RunByTurns(Ours ours, Other other, int rounds)
{
    Rounds measured;
    for (int i = 0; i < rounds; ++i) {
        const Cost ourCost = ours();
        measured.Add(ourCost, other());
    }
    return measured;
}

template<class Ours, class Other>
Comparison Compare(Ours ours, Other other)
{
    return RunByTurns(ours, other, usualRounds).Compared();
}

} // namespace Bench
