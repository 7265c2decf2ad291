#include "IOLJsonReader.h"

#include "IOLError.h"
#include "IOLJsonValue.h"

#include <QByteArrayView>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace Orlimo {

namespace {

// Parsed, a text takes up to thirty times its size.
constexpr qint64 maximumFileSize = qint64(256) << 20;

using ErrorPointer = std::shared_ptr<const IOLError>;

std::shared_ptr<IOLJsonValue> Fail(ErrorPointer *error, std::string source, std::string place,
                                   std::string reason)
{
    if (error)
        *error = IOLError::MallocError(std::move(source), std::move(place), std::move(reason));
    return nullptr;
}

std::string LineAndColumn(QByteArrayView text, qsizetype offset)
{
    const QByteArrayView before = text.first(std::clamp<qsizetype>(offset, 0, text.size()));
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const auto column = before.size() - before.lastIndexOf('\n');
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

// JSON text does not begin with a byte order mark, but a reader may ignore one.
QByteArrayView WithoutByteOrderMark(QByteArrayView text)
{
    constexpr QByteArrayView mark("\xEF\xBB\xBF");
    return text.startsWith(mark) ? text.sliced(mark.size()) : text;
}

bool IsScalar(QByteArrayView text)
{
    constexpr QByteArrayView white(" \t\r\n");
    const auto first = std::find_if(text.begin(), text.end(),
                                    [&](char c) { return !white.contains(c); });
    return first != text.end() && *first != '{' && *first != '[';
}

// QJsonDocument holds objects and arrays only, so a lone scalar is parsed as an array of one.
std::shared_ptr<IOLJsonValue> ParseScalar(QByteArrayView text)
{
    QByteArray wrapped;
    wrapped.reserve(text.size() + 2);
    wrapped.append('[').append(text).append(']');
    const QJsonArray array = QJsonDocument::fromJson(wrapped).array();
    return array.size() == 1 ? IOLJsonValue::MallocJsonValue(array.first()) : nullptr;
}

std::shared_ptr<IOLJsonValue> Parse(const QByteArray &text, const std::string &source,
                                    ErrorPointer *error)
{
    if (const QByteArrayView bare = WithoutByteOrderMark(text); IsScalar(bare)) {
        if (auto scalar = ParseScalar(bare))
            return scalar;
    }
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(text, &fault);
    if (fault.error != QJsonParseError::NoError) {
        return Fail(error, source, LineAndColumn(text, fault.offset),
                    fault.errorString().toStdString());
    }
    return IOLJsonValue::MallocJsonValue(document.isObject() ? QJsonValue(document.object())
                                                             : QJsonValue(document.array()));
}

} // namespace

std::shared_ptr<IOLJsonValue> IOLJsonReader::ReadJsonFile(std::string path, ErrorPointer *error)
{
    QFile file(QString::fromStdString(path));
    const QFileInfo info(file);
    if (!info.exists())
        return Fail(error, std::move(path), {}, "the file does not exist");
    if (!info.isFile())
        return Fail(error, std::move(path), {}, "not a regular file");
    if (info.size() > maximumFileSize)
        return Fail(error, std::move(path), {}, "the file is larger than 256 MiB");
    if (!file.open(QIODevice::ReadOnly))
        return Fail(error, std::move(path), {}, file.errorString().toStdString());
    const QByteArray text = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return Fail(error, std::move(path), {}, file.errorString().toStdString());
    return Parse(text, path, error);
}

std::shared_ptr<IOLJsonValue> IOLJsonReader::ReadJsonString(std::string text, ErrorPointer *error)
{
    return Parse(QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())), {},
                 error);
}

} // namespace Orlimo
