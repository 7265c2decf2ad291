#include "OLFormatText.h"

#include <QCoreApplication>

namespace Orlimo {

// Catalogues hold these messages without a comment; the text as its own disambiguation is looked up
// first, then the text alone.
QString TranslateFormatText(const std::string &text)
{
    if (text.empty())
        return {};
    const QString translation = QCoreApplication::translate("RPObject", text.c_str(), text.c_str());
    return translation.isEmpty() ? QString::fromStdString(text) : translation;
}

} // namespace Orlimo
