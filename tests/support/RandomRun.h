#pragma once

#include <QDir>
#include <QFileInfo>

#include <array>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace Test {

// Random choices that are the same for the same seed on every platform.
class Random
{
public:
    explicit Random(unsigned seed)
        : m_engine(seed)
    {
    }

    // A number from 0 to limit - 1; limit is 1 or more.
    int Below(int limit) { return static_cast<int>(m_engine() % static_cast<unsigned>(limit)); }

    bool OneIn(int chances) { return Below(chances) == 0; }

    template<class Container>
    const auto &Pick(const Container &container)
    {
        return *std::next(std::begin(container), Below(static_cast<int>(std::size(container))));
    }

    // One of the entries, each as often as its weight says; entries have the member weight.
    template<class Container>
    const auto &PickWeighted(const Container &container)
    {
        int total = 0;
        for (const auto &entry : container)
            total += entry.weight;
        int place = Below(total);
        auto entry = std::begin(container);
        for (; place >= entry->weight; ++entry)
            place -= entry->weight;
        return *entry;
    }

private:
    std::mt19937 m_engine;
};

// The seeds that a random test runs: 1 to count, or to count times what ORLIMO_RANDOM_RUNS says, or
// the one that ORLIMO_RANDOM_SEED names.
inline std::vector<unsigned> RandomSeeds(int count)
{
    if (const int seed = qEnvironmentVariableIntValue("ORLIMO_RANDOM_SEED"))
        return { static_cast<unsigned>(seed) };
    const int runs = qMax(1, qEnvironmentVariableIntValue("ORLIMO_RANDOM_RUNS"));
    std::vector<unsigned> seeds;
    for (int seed = 1; seed <= count * runs; ++seed)
        seeds.push_back(static_cast<unsigned>(seed));
    return seeds;
}

// Where tests that save all the time keep their settings: in memory where the system has a folder
// for that, since a save waits for the disk.
inline QString FolderForSaves()
{
    const QString inMemory = QStringLiteral("/dev/shm");
    return QFileInfo(inMemory).isWritable() ? inMemory : QDir::tempPath();
}

// Random texts of few different letters, so that they often occur in each other: letters in two
// cases, of one to four bytes, and characters that have no case or a meaning in a file.
inline std::string RandomText(Random &random, int longest)
{
    constexpr std::array letters { "A", "a", "A", "a", "B", "b",  "Ä",  "ä",
                                   "Ж", "ж", "𐐀", "𐐨", " ", "\"", "\\", "/" };
    std::string text;
    for (int length = random.Below(longest + 1); length > 0; --length)
        text += random.Pick(letters);
    return text;
}

} // namespace Test
