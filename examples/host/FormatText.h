#pragma once

#include <QString>

#include <string>

namespace Host {

// What the user reads for a text of the format library: its translation in the picker's catalogues,
// or the text itself.
QString FormatText(const std::string &text);

} // namespace Host
