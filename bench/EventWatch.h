#pragma once

#include "Stopwatch.h"

#include <QObject>
#include <QSet>

#include <functional>

namespace Bench {

// Sees every event of the application, and so knows what was painted.
class EventWatch final : public QObject
{
public:
    EventWatch();

    bool WasPainted(const QObject *widget) const { return m_painted.contains(widget); }

    // Runs the event loop until nothing is left to be done at once.
    void RunUntilIdle();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int m_events = 0;
    QSet<const QObject *> m_painted;
};

using Painted = std::function<bool(const EventWatch &watch)>;

// What is taken from the call of action until the event loop has nothing left to do and all is
// painted that painted() asks for.
Cost UntilPainted(const std::function<void()> &action, const Painted &painted);

void RunUntilIdle();

} // namespace Bench
