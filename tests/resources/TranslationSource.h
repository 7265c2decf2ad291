#pragma once

#include <QFile>
#include <QMap>
#include <QPair>
#include <QXmlStreamReader>

namespace Test {

using MessageKey = QPair<QString, QString>; // context and source text

struct SourceTranslation
{
    QString text;
    QString type; // empty where the translation is finished
};

using TranslationMap = QMap<MessageKey, SourceTranslation>;

// The messages of a translation source (.ts); empty where it cannot be read.
inline TranslationMap ReadTranslationSource(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    TranslationMap messages;
    MessageKey key;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("name")) {
            key.first = reader.readElementText();
        } else if (reader.name() == QLatin1String("source")) {
            key.second = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            const QString type = reader.attributes().value(QLatin1String("type")).toString();
            messages.insert(key, { reader.readElementText(), type });
        }
    }
    return reader.hasError() ? TranslationMap() : messages;
}

} // namespace Test
