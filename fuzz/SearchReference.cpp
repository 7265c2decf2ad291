#include "SearchReference.h"

#include <QString>

#include <algorithm>
#include <iterator>
#include <optional>

namespace Fuzz {

namespace {

struct Character
{
    char32_t code;
    std::size_t length;
};

std::size_t LengthByFirstByte(unsigned char byte)
{
    if (byte < 0x80)
        return 1;
    return byte < 0xC0 ? 0 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : byte < 0xF8 ? 4 : 0;
}

bool IsWellFormed(Character character)
{
    constexpr char32_t smallest[] = { 0, 0, 0x80, 0x800, 0x10000 };
    const bool surrogate = character.code >= 0xD800 && character.code <= 0xDFFF;
    return character.code >= smallest[character.length] && character.code <= 0x10FFFF && !surrogate;
}

// The character at a place in the text; no value where its bytes are not well-formed UTF-8.
std::optional<Character> CharacterAt(const std::string &text, std::size_t place)
{
    const auto first = static_cast<unsigned char>(text[place]);
    const std::size_t length = LengthByFirstByte(first);
    if (length == 0 || length > text.size() - place)
        return std::nullopt;
    char32_t code = length == 1 ? first : first & (0x7FU >> length);
    for (std::size_t i = place + 1; i < place + length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte >> 6 != 2)
            return std::nullopt;
        code = code << 6 | (byte & 0x3FU);
    }
    const Character character { code, length };
    return IsWellFormed(character) ? std::optional(character) : std::nullopt;
}

// U+0130 alone becomes more than one character, whatever stands beside it.
std::string LoweredCharacter(char32_t code)
{
    if (code == 0x130)
        return "i\xCC\x87";
    return QStringView(QChar::fromUcs4(QChar::toLower(code))).toUtf8().toStdString();
}

bool Contains(const std::string &text, const std::string &loweredKeyword)
{
    return Lowered(text).find(loweredKeyword) != std::string::npos;
}

void CollectRecentChoices(const PlainNode &node, std::vector<PlainRecent> &choices)
{
    if (!node.presets.empty())
        choices.push_back({ &node, &node.presets.front() });
    for (const PlainNode &child : node.children)
        CollectRecentChoices(child, choices);
}

} // namespace

std::string Lowered(const std::string &text)
{
    std::string lowered;
    for (std::size_t place = 0; place < text.size();) {
        const auto character = CharacterAt(text, place);
        lowered += character ? LoweredCharacter(character->code) : text.substr(place, 1);
        place += character ? character->length : 1;
    }
    return lowered;
}

PlainNode SearchResult(const PlainNode &node, const std::string &loweredKeyword)
{
    PlainNode result { node.name, node.description, {}, {} };
    std::ranges::copy_if(node.presets, std::back_inserter(result.presets), [&](const auto &preset) {
        return Contains(preset.name, loweredKeyword)
                || Contains(preset.description, loweredKeyword);
    });
    for (const PlainNode &child : node.children) {
        const bool whole = Contains(child.name, loweredKeyword);
        PlainNode kept = whole ? child : SearchResult(child, loweredKeyword);
        if (whole || !kept.presets.empty() || !kept.children.empty())
            result.children.push_back(std::move(kept));
    }
    return result;
}

std::vector<PlainRecent> RecentChoices(const PlainNode &root)
{
    std::vector<PlainRecent> choices;
    CollectRecentChoices(root, choices);
    return choices;
}

bool IsKept(const PlainRecent &choice, const std::string &loweredKeyword)
{
    const std::string &presetName = choice.preset->name;
    const std::string &nodeName = choice.node->name;
    const bool namesItsFormat = presetName.find(nodeName) != std::string::npos;
    return Contains(namesItsFormat ? presetName : nodeName + ' ' + presetName, loweredKeyword)
            || Contains(choice.node->description, loweredKeyword);
}

} // namespace Fuzz
