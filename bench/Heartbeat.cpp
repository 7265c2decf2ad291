#include "Heartbeat.h"

#include <QEventLoop>

#include <utility>

namespace Bench {

Heartbeat::Heartbeat(OnBeat onBeat)
    : m_onBeat(std::move(onBeat))
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.callOnTimeout([this] { Beat(); });
    m_timer.start(std::chrono::milliseconds(1));
}

void Heartbeat::Beat()
{
    const auto now = std::chrono::steady_clock::now();
    m_onBeat(now - std::exchange(m_lastBeat, now));
}

void RunFor(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace Bench
