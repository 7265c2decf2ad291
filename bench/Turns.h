#pragma once

#include "SceneProcess.h"

#include <functional>

namespace Bench {

// A scene of several rounds has fewer of them in each of its processes.
constexpr int fewTurns = 3;
QString RoundsOfTurn();

// Two scenes whose processes run by turns, when either is first asked for.
class Turns
{
public:
    using Scene = std::function<QStringList(int turn)>;

    Turns(int turns, Scene first, Scene second);

    const QList<Figures> &First();
    const QList<Figures> &Second();

private:
    void Run();

    const int m_turns;
    const Scene m_firstScene;
    const Scene m_secondScene;
    QList<Figures> m_first;
    QList<Figures> m_second;
};

} // namespace Bench
