#pragma once

#include "OLTextLines.h"

#include <QHash>
#include <QString>

#include <utility>
#include <vector>

namespace Orlimo {

// Finds the places of values in a JSON text (UTF-8), which the parser does not keep.
class OLJsonLocator
{
public:
    // The parser has accepted the text, and so bounded its nesting.
    explicit OLJsonLocator(QByteArray text);

    // Where the value at pointer (RFC 6901) begins; of a member that an object has twice, the last
    // one, which is the one that counts. Where there is no such value: the innermost one that
    // contains its place.
    OLTextPlace PlaceOf(const QString &pointer) const;

private:
    class Scanner;

    using Step = std::pair<qsizetype, QString>; // from a value to its member or element

    OLTextLines m_lines;
    std::vector<qsizetype> m_values; // where each begins
    QHash<Step, qsizetype> m_steps;
};

} // namespace Orlimo
