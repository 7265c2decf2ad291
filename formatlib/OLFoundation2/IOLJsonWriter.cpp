#include "IOLJsonWriter.h"

#include "IOLJsonValue.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Orlimo {

namespace {

QByteArray WriteScalar(const QJsonValue &value)
{
    const QByteArray array = QJsonDocument(QJsonArray { value }).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2);
}

QByteArray Write(const QJsonValue &value)
{
    if (value.isObject())
        return QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact);
    if (value.isArray())
        return QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact);
    return WriteScalar(value);
}

// Qt's parser drops a U+FEFF at the start of a text unless it is escaped.
QByteArray WithEscapedMarks(QByteArray text)
{
    if (!text.contains('\xEF'))
        return text;
    return text.replace("\xEF\xBB\xBF", "\\ufeff");
}

} // namespace

std::string IOLJsonWriter::WriteJsonString(std::shared_ptr<const IOLJsonValue> value)
{
    return value ? WithEscapedMarks(Write(value->ToQJsonValue())).toStdString() : std::string();
}

} // namespace Orlimo
