#include "OLTextLines.h"

#include <QByteArrayView>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Orlimo {

namespace {

constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");
constexpr qsizetype blockSize = 1024;

bool BeginsCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

qsizetype CharactersIn(QByteArrayView text)
{
    return std::ranges::count_if(text, BeginsCharacter);
}

} // namespace

OLTextLines::OLTextLines(QByteArray text)
    : m_text(std::move(text))
{
    m_lines.push_back(0);
    for (qsizetype end = m_text.indexOf('\n'); end >= 0; end = m_text.indexOf('\n', end + 1))
        m_lines.push_back(end + 1);
    const QByteArrayView bytes(m_text);
    m_characters.push_back(0);
    for (qsizetype end = blockSize; end <= bytes.size(); end += blockSize) {
        const auto block = bytes.sliced(end - blockSize, blockSize);
        m_characters.push_back(m_characters.back() + CharactersIn(block));
    }
}

qsizetype OLTextLines::Begin() const
{
    return m_text.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
}

OLTextPlace OLTextLines::PlaceOf(qsizetype offset) const
{
    const qsizetype end = std::clamp(offset, Begin(), m_text.size());
    const auto next = std::ranges::upper_bound(m_lines, end);
    const qsizetype begin = std::max(*std::prev(next), Begin());
    return { next - m_lines.begin(), CharactersBefore(end) - CharactersBefore(begin) + 1 };
}

qsizetype OLTextLines::CharactersBefore(qsizetype offset) const
{
    const qsizetype blocks = offset / blockSize;
    const auto rest = QByteArrayView(m_text).first(offset).sliced(blocks * blockSize);
    return m_characters[static_cast<std::size_t>(blocks)] + CharactersIn(rest);
}

OLTextPlace OLTextLines::PlaceInLine(qsizetype line, qsizetype byte) const
{
    const auto last = static_cast<qsizetype>(m_lines.size());
    const auto index = static_cast<std::size_t>(std::clamp<qsizetype>(line, 1, last) - 1);
    return PlaceOf(m_lines[index] + byte - 1);
}

} // namespace Orlimo
