#include "EventWatch.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>

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

Nanoseconds UntilPainted(const std::function<void()> &action, const Painted &painted)
{
    EventWatch watch;
    const auto start = std::chrono::steady_clock::now();
    action();
    while (true) {
        watch.RunUntilIdle();
        const auto elapsed = std::chrono::steady_clock::now() - start;
        if (painted(watch))
            return elapsed;
        if (elapsed > longestWait)
            qFatal("a window is not painted");
        QAbstractEventDispatcher::instance()->processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void RunUntilIdle()
{
    EventWatch().RunUntilIdle();
}

} // namespace Bench
