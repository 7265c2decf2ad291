#include "FormatText.h"

#include <QCoreApplication>

namespace Host {

QString FormatText(const std::string &text)
{
    return QCoreApplication::translate("RPObject", text.c_str());
}

} // namespace Host
