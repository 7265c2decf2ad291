#pragma once

#include <QByteArray>

#include <vector>

namespace Orlimo {

// A place in a text: lines and columns count from 1, a column is one Unicode character.
struct OLTextPlace
{
    qsizetype line = 1;
    qsizetype column = 1;

    friend auto operator<=>(const OLTextPlace &, const OLTextPlace &) = default;
};

// The lines of a text in UTF-8, whole or damaged. A line ends with a line feed, before which a
// carriage return may stand; a byte order mark at the start takes no column.
class OLTextLines
{
public:
    explicit OLTextLines(QByteArray text);

    const QByteArray &Text() const { return m_text; }

    // The first byte behind the byte order mark, if there is one.
    qsizetype Begin() const;

    // Where the byte is; behind the text: its end.
    OLTextPlace PlaceOf(qsizetype offset) const;

    // Where the byte is that is the given one of its line, both from 1.
    OLTextPlace PlaceInLine(qsizetype line, qsizetype byte) const;

private:
    qsizetype CharactersBefore(qsizetype offset) const;

    QByteArray m_text;
    std::vector<qsizetype> m_lines;      // where each begins
    std::vector<qsizetype> m_characters; // how many begin before each block of the text
};

} // namespace Orlimo
