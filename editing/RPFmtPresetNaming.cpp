#include "RPFmtPresetNaming.h"

#include <QString>

namespace Orlimo {

namespace {

constexpr qsizetype longestName = 32767; // that a line edit takes

std::string BaseName(const std::string &presetName, const std::string &nodeName)
{
    if (presetName.empty())
        return nodeName;
    return NamesFormat(presetName, nodeName) ? presetName : nodeName + ' ' + presetName;
}

// The start of the text, which does not end in half a character.
QString Start(const QString &text, qsizetype length)
{
    const bool splits = length < text.size() && text.at(length).isLowSurrogate();
    return text.left(splits ? length - 1 : length);
}

std::string NumberedName(const QString &base, int number)
{
    const QString suffix = QStringLiteral("-custom") + QString::number(number);
    return (Start(base, longestName - suffix.size()) + suffix).toStdString();
}

} // namespace

bool NamesFormat(const std::string &presetName, const std::string &nodeName)
{
    return presetName.find(nodeName) != std::string::npos;
}

std::string ProposeCustomName(const std::string &presetName, const std::string &nodeName,
                              const std::function<bool(const std::string &)> &isInUse)
{
    const QString base = QString::fromStdString(BaseName(presetName, nodeName));
    int number = 0;
    while (isInUse(NumberedName(base, number)))
        ++number;
    return NumberedName(base, number);
}

} // namespace Orlimo
