#pragma once

#include <QString>

#include <string>

namespace Orlimo {

// The translation, or the source text (UTF-8) where there is none: a catalogue may hold a message
// whose translation is empty.
QString OrSourceText(const QString &translation, const char *source);

// The translation of a text of the format library (UTF-8): of a name, a description, an encoder or
// an option. The text itself where no catalogue has a translation for it.
QString TranslateFormatText(const std::string &text);

// The translation of a text of the editing dialog's form, in the form's own context; the form calls
// it with a null comment.
QString TranslateEditingForm(const char *text, const char *comment);

} // namespace Orlimo
