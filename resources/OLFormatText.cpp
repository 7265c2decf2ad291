#include "OLFormatText.h"

#include <QCoreApplication>

namespace Orlimo {

QString OrSourceText(const QString &translation, const char *source)
{
    return translation.isEmpty() ? QString::fromUtf8(source) : translation;
}

// Catalogues hold these messages without a comment; the text as its own disambiguation is looked up
// first, then the text alone.
QString TranslateFormatText(const std::string &text)
{
    if (text.empty())
        return {};
    const QString translation = QCoreApplication::translate("RPObject", text.c_str(), text.c_str());
    return OrSourceText(translation, text.c_str());
}

QString TranslateEditingForm(const char *text, const char *comment)
{
    return OrSourceText(QCoreApplication::translate("RPFmtEditingDlgClass", text, comment), text);
}

} // namespace Orlimo
