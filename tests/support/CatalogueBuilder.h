#pragma once

#include <QByteArray>
#include <QString>
#include <QTranslator>

#include <vector>

namespace Test {

// A message of a catalogue; its comment is empty.
struct Message
{
    const char *context;
    QByteArray source; // UTF-8
    QString translation;
};

// A catalogue in Qt's format (.qm) as lrelease makes it, but for the plural rules.
QByteArray MakeCatalogue(const std::vector<Message> &messages);

// A catalogue that the application uses as long as this object lives.
class InstalledCatalogue
{
public:
    explicit InstalledCatalogue(const std::vector<Message> &messages);
    ~InstalledCatalogue();
    Q_DISABLE_COPY_MOVE(InstalledCatalogue)

private:
    QByteArray m_bytes; // the translator points into them
    QTranslator m_translator;
};

} // namespace Test
