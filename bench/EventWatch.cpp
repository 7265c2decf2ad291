#include "EventWatch.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>

#include <chrono>

namespace Bench {

namespace {

constexpr std::chrono::seconds longestWait { 60 };

} // namespace

EventWatch::EventWatch()
{
    QCoreApplication::instance()->installEventFilter(this);
}

void EventWatch::RunUntilIdle()
{
    auto *dispatcher = QAbstractEventDispatcher::instance();
    bool busy = true;
    while (busy) {
        const int before = m_events;
        busy = dispatcher->processEvents(QEventLoop::AllEvents) || m_events != before;
    }
}

bool EventWatch::eventFilter(QObject *watched, QEvent *event)
{
    ++m_events;
    if (event->type() == QEvent::Paint)
        m_painted.insert(watched);
    return false;
}

Cost UntilPainted(const std::function<void()> &action, const Painted &painted)
{
    EventWatch watch;
    const auto end = std::chrono::steady_clock::now() + longestWait;
    Stopwatch stopwatch;
    action();
    while (true) {
        watch.RunUntilIdle();
        const Cost cost = stopwatch.Read();
        if (painted(watch))
            return cost;
        if (std::chrono::steady_clock::now() > end)
            qFatal("a window is not painted");
        QAbstractEventDispatcher::instance()->processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void RunUntilIdle()
{
    EventWatch().RunUntilIdle();
}

} // namespace Bench
