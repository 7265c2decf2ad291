#pragma once

#include <QList>
#include <QStringList>

namespace Bench {

using Figures = QList<double>;

// The figures of each round of a scene, run in a process of its own with these arguments.
QList<Figures> RunInProcess(const QStringList &scene);

// The same in millions of instructions, counted by callgrind.
QList<Figures> CountInProcess(const QStringList &scene);

} // namespace Bench
