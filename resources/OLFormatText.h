#pragma once

#include <QString>

#include <string>

namespace Orlimo {

// The translation of a text of the format library (UTF-8): of a name, a description, an encoder or
// an option. The text itself where no catalogue has a translation for it.
QString TranslateFormatText(const std::string &text);

} // namespace Orlimo
