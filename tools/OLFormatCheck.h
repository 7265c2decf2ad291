#pragma once

#include "OLTextLines.h"

#include <QString>

#include <optional>
#include <vector>

namespace Orlimo {

// One thing that a check found.
struct OLFinding
{
    bool isFault = true; // otherwise a warning
    QString file;
    std::optional<OLTextPlace> place; // none where the file as a whole is meant, or has no lines
    QString pointer;                  // RFC 6901, empty for the whole document
    QString text;

    // "file:line:column: error: /pointer: text", without a line break inside.
    QString ToLine() const;
};

// Reads a format description and the artwork file beside it with the code that the picker reads
// them with, and returns what is wrong, in the order of the text. There are warnings only about a
// description that the picker accepts.
std::vector<OLFinding> CheckFormat(const QString &description);

} // namespace Orlimo
