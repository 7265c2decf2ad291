#pragma once

#include <QString>

#include <string>

namespace Orlimo {
class IOLFmtPresetRecentItem;
} // namespace Orlimo

namespace Host {

// What the user reads for a text of the format library: its translation in the picker's catalogues,
// or the text itself.
QString FormatText(const std::string &text);

// What the user reads for a choice, which is not empty: its display name with the format's and the
// preset's part translated each for itself, since no catalogue has them joined.
QString ChoiceText(const Orlimo::IOLFmtPresetRecentItem &choice);

} // namespace Host
