#include "IOLStringHelper.h"

#include "OLText.h"

#include <algorithm>
#include <string_view>

namespace Orlimo {

namespace {

bool IsAscii(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

char AsciiToLower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// The well-formed byte sequences of The Unicode Standard, table 3-7, by their first byte.
struct SequenceRule
{
    unsigned char firstLow;
    unsigned char firstHigh;
    std::size_t length;
    unsigned char secondLow;
    unsigned char secondHigh;
};

constexpr SequenceRule sequenceRules[] = {
    { 0x00, 0x7F, 1, 0x00, 0x00 }, { 0xC2, 0xDF, 2, 0x80, 0xBF }, { 0xE0, 0xE0, 3, 0xA0, 0xBF },
    { 0xE1, 0xEC, 3, 0x80, 0xBF }, { 0xED, 0xED, 3, 0x80, 0x9F }, { 0xEE, 0xEF, 3, 0x80, 0xBF },
    { 0xF0, 0xF0, 4, 0x90, 0xBF }, { 0xF1, 0xF3, 4, 0x80, 0xBF }, { 0xF4, 0xF4, 4, 0x80, 0x8F },
};

bool InRange(char c, unsigned char low, unsigned char high)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= low && byte <= high;
}

// Returns the length of the well-formed sequence at the start of text, 0 if there is none.
std::size_t SequenceLength(std::string_view text)
{
    const auto rule = std::ranges::find_if(sequenceRules, [&](const SequenceRule &candidate) {
        return InRange(text.front(), candidate.firstLow, candidate.firstHigh);
    });
    if (rule == std::end(sequenceRules) || rule->length > text.size())
        return 0;
    if (rule->length > 1 && !InRange(text[1], rule->secondLow, rule->secondHigh))
        return 0;
    for (std::size_t i = 2; i < rule->length; ++i) {
        if (!InRange(text[i], 0x80, 0xBF))
            return 0;
    }
    return rule->length;
}

std::size_t WellFormedPrefix(std::string_view text)
{
    std::size_t end = 0;
    while (end < text.size()) {
        const std::size_t length = SequenceLength(text.substr(end));
        if (length == 0)
            break;
        end += length;
    }
    return end;
}

std::string UnicodeToLower(std::string_view text)
{
    std::string lowered;
    lowered.reserve(text.size());
    while (!text.empty()) {
        const std::size_t wellFormed = WellFormedPrefix(text);
        lowered += ToQString(text.substr(0, wellFormed)).toLower().toStdString();
        text.remove_prefix(wellFormed);
        if (text.empty())
            break;
        lowered += text.front();
        text.remove_prefix(1);
    }
    return lowered;
}

} // namespace

std::string IOLStringHelper::ToLower(const std::string &text)
{
    if (!std::ranges::all_of(text, IsAscii))
        return UnicodeToLower(text);
    std::string lowered(text.size(), '\0');
    std::ranges::transform(text, lowered.begin(), AsciiToLower);
    return lowered;
}

} // namespace Orlimo
