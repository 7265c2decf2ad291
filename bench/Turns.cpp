#include "Turns.h"

#include "Comparison.h"

#include <utility>

namespace Bench {

QString RoundsOfTurn()
{
    return QString::number(usualRounds / fewTurns);
}

Turns::Turns(int turns, Scene first, Scene second)
    : m_turns(turns)
    , m_firstScene(std::move(first))
    , m_secondScene(std::move(second))
{
}

const QList<Figures> &Turns::First()
{
    Run();
    return m_first;
}

const QList<Figures> &Turns::Second()
{
    Run();
    return m_second;
}

void Turns::Run()
{
    if (!m_first.isEmpty())
        return;
    for (int turn = 0; turn < m_turns; ++turn) {
        m_first += RunInProcess(m_firstScene(turn));
        m_second += RunInProcess(m_secondScene(turn));
    }
}

} // namespace Bench
