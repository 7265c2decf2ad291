#pragma once

#include <QList>
#include <QMutex>
#include <QString>
#include <QtGlobal>

#include <utility>

namespace Test {

struct Message
{
    QtMsgType type;
    QString category;
    QString text;
};

// Takes the messages of all threads for as long as it lives; there is one at a time.
class MessageRecorder
{
public:
    MessageRecorder()
    {
        s_recorder = this;
        m_previous = qInstallMessageHandler(&Record);
    }
    MessageRecorder(const MessageRecorder &) = delete;
    MessageRecorder &operator=(const MessageRecorder &) = delete;
    ~MessageRecorder()
    {
        qInstallMessageHandler(m_previous);
        s_recorder = nullptr;
    }

    QList<Message> Take()
    {
        const QMutexLocker lock(&m_mutex);
        return std::exchange(m_messages, {});
    }

private:
    static void Record(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        const QMutexLocker lock(&s_recorder->m_mutex);
        s_recorder->m_messages.append({ type, QString::fromUtf8(context.category), text });
    }

    static inline MessageRecorder *s_recorder = nullptr;

    QtMessageHandler m_previous = nullptr;
    QMutex m_mutex;
    QList<Message> m_messages;
};

} // namespace Test
