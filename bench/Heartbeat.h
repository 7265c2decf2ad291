#pragma once

#include <QTimer>

#include <chrono>
#include <functional>

namespace Bench {

using Nanoseconds = std::chrono::duration<double, std::nano>;

// Beats every millisecond while the GUI thread is free, and reports the time since the last beat.
class Heartbeat
{
public:
    using OnBeat = std::function<void(Nanoseconds gap)>;

    explicit Heartbeat(OnBeat onBeat);

private:
    void Beat();

    OnBeat m_onBeat;
    std::chrono::steady_clock::time_point m_lastBeat = std::chrono::steady_clock::now();
    QTimer m_timer;
};

// Runs the event loop for so long.
void RunFor(std::chrono::milliseconds time);

} // namespace Bench
