#include "Stopwatch.h"

#include <QCoreApplication>
#include <QFile>

#ifdef HAVE_CALLGRIND
#include <valgrind/callgrind.h>
#endif

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace Bench {

namespace {

#ifdef HAVE_CALLGRIND
constexpr bool hasCallgrind = true;

void StartCount()
{
    CALLGRIND_ZERO_STATS;
    CALLGRIND_START_INSTRUMENTATION;
}

void DumpCount()
{
    CALLGRIND_STOP_INSTRUMENTATION;
    CALLGRIND_DUMP_STATS_AT("measured");
}
#else
constexpr bool hasCallgrind = false;

void StartCount() { }
void DumpCount() { }
#endif

#ifdef __x86_64__
__attribute__((target("avx"))) void ClearUpperHalves()
{
    _mm256_zeroupper();
}

// What the C library copies in large blocks leaves the vector registers of some processors in a
// state in which a search takes more than twice as long. Painting clears them, and a search of the
// picker comes after painting.
void ClearVectorRegisters()
{
    if (__builtin_cpu_supports("avx"))
        ClearUpperHalves();
}
#else
void ClearVectorRegisters() { }
#endif

Cost CountIn(const QString &path)
{
    constexpr QByteArrayView totals("totals: ");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("there are no counts of callgrind in %s", qUtf8Printable(path));
    const QByteArray counts = file.readAll();
    const qsizetype place = counts.lastIndexOf(totals);
    if (place < 0)
        qFatal("there are no totals in %s", qUtf8Printable(path));
    const qsizetype begin = place + totals.size();
    return counts.sliced(begin, counts.indexOf('\n', begin) - begin).toDouble() / 1e6;
}

// Callgrind numbers its files from 1 on.
Cost CountInNextFile()
{
    static int files = 0;
    return CountIn(QStringLiteral("callgrind.out.%1.%2")
                           .arg(QCoreApplication::applicationPid())
                           .arg(++files));
}

} // namespace

bool IsCounting()
{
#ifdef HAVE_CALLGRIND
    return RUNNING_ON_VALGRIND != 0;
#else
    return false;
#endif
}

bool CanCount()
{
    return hasCallgrind;
}

Stopwatch::Stopwatch()
{
    ClearVectorRegisters();
    if (IsCounting())
        StartCount();
    m_start = std::chrono::steady_clock::now();
}

Cost Stopwatch::Read()
{
    if (IsCounting())
        return ReadCount();
    return std::chrono::duration<Cost, std::milli>(std::chrono::steady_clock::now() - m_start)
            .count();
}

// A dump sets the counts to zero; what the reading of its file takes is not counted.
Cost Stopwatch::ReadCount()
{
    DumpCount();
    m_count += CountInNextFile();
    StartCount();
    return m_count;
}

} // namespace Bench
