#include "IOLBase64Codec.h"

#include <QByteArray>

namespace Orlimo {

namespace {

QByteArray Wrap(std::string_view bytes)
{
    return QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

} // namespace

std::string IOLBase64Codec::Encode(std::string_view bytes)
{
    return Wrap(bytes).toBase64().toStdString();
}

std::string IOLBase64Codec::Decode(std::string_view text)
{
    const auto result =
            QByteArray::fromBase64Encoding(Wrap(text),
                                           QByteArray::Base64Encoding
                                                   | QByteArray::AbortOnBase64DecodingErrors);
    // Qt takes a text without its padding, and a last digit with bits that belong to no byte.
    const bool isBase64 = result && result.decoded.toBase64() == Wrap(text);
    return isBase64 ? result.decoded.toStdString() : std::string();
}

} // namespace Orlimo
