#pragma once

#include "Activity.h"

#include <QAbstractEventDispatcher>
#include <QPointer>
#include <QTest>
#include <QTimer>

namespace Test {

// Drives a window that opens modally, and so keeps the test waiting: made before the call that
// opens the window, it runs action(window) as soon as a modal window of the class is active. The
// test fails where none has opened by the end of the scope, where it does not become active, but on
// Windows, and where action leaves the window open, which is then closed.
template<class Window>
class WhenOpen
{
public:
    template<class Action>
    explicit WhenOpen(Action action)
    {
        m_timer.callOnTimeout([this, action] { RunOnceOpen(action); });
        const auto begin = [this, action] {
            m_timer.start(0);
            RunOnceOpen(action);
        };
        QMetaObject::invokeMethod(&m_timer, begin, Qt::QueuedConnection);
    }

    ~WhenOpen()
    {
        if (!m_hasRun)
            QTest::qFail("no modal window of the class has opened", __FILE__, __LINE__);
    }

private:
    // On Windows this may come before the window opens, from the depths of what opens it.
    template<class Action>
    void RunOnceOpen(const Action &action)
    {
        if (!OpenModal())
            return;
        m_timer.stop();
        const auto isActive = [] { return OpenModal() && IsActive(*OpenModal()); };
        if (!QTest::qWaitFor(isActive, timeToBecomeActive) && !mayStayInactive)
            QTest::qFail("the modal window has not become active", __FILE__, __LINE__);
        Run(action);
        WakeLoopOfWindow();
    }

    template<class Action>
    void Run(const Action &action)
    {
        const QPointer<Window> window = OpenModal();
        if (!window)
            return;
        m_hasRun = true;
        action(*window);
        if (!window || !window->isVisible())
            return;
        QTest::qFail("the modal window has been left open", __FILE__, __LINE__);
        window->close();
    }

    // On Windows, events that are processed behind the end of the window's loop make it forget that
    // it was to end, and it waits for another event.
    static void WakeLoopOfWindow() { QAbstractEventDispatcher::instance()->interrupt(); }

    static Window *OpenModal() { return qobject_cast<Window *>(QApplication::activeModalWidget()); }

    // Where a host opens another window above it, Windows may tell of that one alone.
#ifdef Q_OS_WIN
    static constexpr bool mayStayInactive = true;
    static constexpr int timeToBecomeActive = 500; // in milliseconds
#else
    static constexpr bool mayStayInactive = false;
    static constexpr int timeToBecomeActive = 5000; // in milliseconds
#endif
    QTimer m_timer;
    bool m_hasRun = false;
};

} // namespace Test
