#pragma once

#include <QCoreApplication>
#include <QMap>
#include <QTranslator>

namespace Test {

// A catalogue for as long as it lives. A message is found only under the very context, text and
// comment that it was added with; a message without a comment has an empty one.
class MapTranslator : public QTranslator
{
public:
    using Message = QByteArrayList; // context, text, comment

    explicit MapTranslator(QMap<Message, QString> messages)
        : m_messages(std::move(messages))
    {
        QCoreApplication::installTranslator(this);
    }

    ~MapTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *text, const char *comment,
                      int) const override
    {
        return m_messages.value(Message { context, text, comment });
    }

private:
    QMap<Message, QString> m_messages;
};

} // namespace Test
