#include "FormatText.h"

#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <QCoreApplication>

namespace Host {

using namespace Orlimo;

QString FormatText(const std::string &text)
{
    return QCoreApplication::translate("RPObject", text.c_str());
}

QString ChoiceText(const IOLFmtPresetRecentItem &choice)
{
    const std::string preset = choice.GetFormatPreset()->Name();
    if (choice.GetDisplayName() == preset)
        return FormatText(preset);
    return FormatText(choice.GetFormatNode()->Name()) + u' ' + FormatText(preset);
}

} // namespace Host
