#pragma once

#include <algorithm>
#include <chrono>
#include <string_view>
#include <vector>

namespace Bench {

using Nanoseconds = std::chrono::duration<double, std::nano>;
using Milliseconds = std::chrono::duration<double, std::milli>;

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

// What the figure of a comparison is in, and what both sides are in.
struct Unit
{
    std::string_view figure;
    std::string_view sides;
};

constexpr Unit ratioUnit { "x", "ms" };
constexpr Unit millisecondUnit { "ms", "ms" };
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
    void Add(double ours, double other)
    {
        m_ours.push_back(ours);
        m_others.push_back(other);
        m_ratios.push_back(ours / other);
    }

    // The medians, and the median of the ratios of each round.
    Comparison Compared() const { return { Median(m_ours), Median(m_others), Median(m_ratios) }; }

private:
    std::vector<double> m_ours;
    std::vector<double> m_others;
    std::vector<double> m_ratios;
};

constexpr int usualRounds = 9;

// Runs ours() and other() by turns, so that a machine that becomes slower slows both down. Each
// returns what it has measured.
template<class Ours, class Other>
Comparison Compare(Ours ours, Other other, int rounds = usualRounds)
{
    Rounds measured;
    for (int i = 0; i < rounds; ++i) {
        const Milliseconds ourTime = ours();
        measured.Add(ourTime.count(), Milliseconds(other()).count());
    }
    return measured.Compared();
}

} // namespace Bench
