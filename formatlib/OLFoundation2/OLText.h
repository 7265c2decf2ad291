#pragma once

#include <QString>
#include <QStringDecoder>

#include <string_view>

namespace Orlimo {

// The UTF-8 text as a QString. Unlike QString::fromUtf8() this keeps a character U+FEFF at the
// start. Bytes that are not well-formed UTF-8 become U+FFFD.
inline QString ToQString(std::string_view text)
{
    using Flag = QStringDecoder::Flag;
    QStringDecoder decoder(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    return decoder(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}

} // namespace Orlimo
