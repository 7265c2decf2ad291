#include "CatalogueBuilder.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QIODevice>

#include <map>

namespace Test {

namespace {

constexpr quint8 hashesSection = 0x42;
constexpr quint8 messagesSection = 0x69;
constexpr quint8 endTag = 1;
constexpr quint8 translationTag = 3;
constexpr quint8 sourceTag = 6;
constexpr quint8 contextTag = 7;
constexpr quint8 commentTag = 8;

constexpr uchar magic[] = { 0x3c, 0xb8, 0x64, 0x18, 0xca, 0xef, 0x9c, 0x95,
                            0xcd, 0x21, 0x1c, 0xbf, 0x60, 0xa1, 0xbd, 0xdd };

// The hash that ELF symbol tables have, of the source text and the comment, which is empty.
quint32 ElfHash(const QByteArray &text)
{
    quint32 hash = 0;
    for (const char character : text) {
        hash = (hash << 4) + static_cast<uchar>(character);
        const quint32 high = hash & 0xf0000000;
        hash ^= high >> 24;
        hash &= ~high;
    }
    return hash ? hash : 1;
}

void WriteMessage(QDataStream &stream, const Message &message)
{
    stream << translationTag << message.translation; // length in bytes and UTF-16, big endian
    const auto writeText = [&](quint8 tag, const QByteArray &text) {
        stream << tag << static_cast<quint32>(text.size());
        stream.writeRawData(text.constData(), static_cast<int>(text.size()));
    };
    writeText(commentTag, {});
    writeText(sourceTag, message.source);
    writeText(contextTag, message.context);
    stream << endTag;
}

} // namespace

QByteArray MakeCatalogue(const std::vector<Message> &messages)
{
    QByteArray messageBytes;
    std::multimap<quint32, quint32> offsets; // by hash
    QDataStream messageStream(&messageBytes, QIODevice::WriteOnly);
    for (const Message &message : messages) {
        offsets.emplace(ElfHash(message.source), static_cast<quint32>(messageBytes.size()));
        WriteMessage(messageStream, message);
    }

    QByteArray hashBytes;
    QDataStream hashStream(&hashBytes, QIODevice::WriteOnly);
    for (const auto &[hash, offset] : offsets)
        hashStream << hash << offset;

    QByteArray bytes(reinterpret_cast<const char *>(magic), sizeof magic);
    QDataStream stream(&bytes, QIODevice::WriteOnly | QIODevice::Append);
    stream << hashesSection << hashBytes << messagesSection << messageBytes;
    return bytes;
}

InstalledCatalogue::InstalledCatalogue(const std::vector<Message> &messages)
    : m_bytes(MakeCatalogue(messages))
{
    const auto *data = reinterpret_cast<const uchar *>(m_bytes.constData());
    if (!m_translator.load(data, static_cast<int>(m_bytes.size())))
        qFatal("the catalogue cannot be loaded");
    QCoreApplication::installTranslator(&m_translator);
}

InstalledCatalogue::~InstalledCatalogue()
{
    QCoreApplication::removeTranslator(&m_translator);
}

} // namespace Test
