#include "OLFmtPresetSearch.h"

#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLStringHelper.h"

#include <algorithm>
#include <iterator>

namespace Orlimo {

namespace {

constexpr int cloneAttributes = 1;

// A keyword, found by the algorithm of Knuth, Morris and Pratt: in a time that grows with the text
// only, however much keyword and text repeat themselves.
class Keyword
{
public:
    explicit Keyword(const std::string &folded)
        : m_folded(folded)
        , m_borders(folded.size())
    {
        std::size_t border = 0;
        for (std::size_t i = 1; i < folded.size(); ++i)
            m_borders[i] = border = Extended(border, folded[i]);
    }

    bool Matches(const std::string &text) const { return OccursIn(IOLStringHelper::ToLower(text)); }

    bool Matches(const IOLFormatPreset &preset) const
    {
        return Matches(preset.Name()) || Matches(preset.Description());
    }

private:
    bool OccursIn(const std::string &foldedText) const
    {
        std::size_t matched = 0;
        for (const char c : foldedText) {
            matched = Extended(matched, c);
            if (matched == m_folded.size())
                return true;
        }
        return false;
    }

    // How much of the keyword the text ends with after c, where it ended with so much before it.
    std::size_t Extended(std::size_t matched, char c) const
    {
        while (matched > 0 && m_folded[matched] != c)
            matched = m_borders[matched - 1];
        return m_folded[matched] == c ? matched + 1 : 0;
    }

    const std::string &m_folded;
    // For each beginning of the keyword, how much of the keyword it also ends with.
    std::vector<std::size_t> m_borders;
};

bool IsEmpty(const IOLFormatNode &node)
{
    return node.PresetCount() == 0 && node.ChildCount() == 0;
}

std::shared_ptr<IOLFormatNode> MatchingTree(IOLFormatNode &node, const Keyword &keyword)
{
    auto result = node.Clone(cloneAttributes);
    for (int i = 0; i < node.PresetCount(); ++i) {
        const auto preset = node.PresetAt(i);
        if (keyword.Matches(*preset))
            result->AddPreset(preset->Clone());
    }
    for (int i = 0; i < node.ChildCount(); ++i) {
        const auto child = node.ChildAt(i);
        if (keyword.Matches(child->Name())) {
            result->AppendChild(child->Clone(IOLFormatNode::CloneAll));
            continue;
        }
        const auto below = MatchingTree(*child, keyword);
        if (!IsEmpty(*below))
            result->AppendChild(below);
    }
    return result;
}

} // namespace

std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> MatchingRecentItems(
        const std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> &items,
        const std::string &foldedKeyword)
{
    const Keyword keyword(foldedKeyword);
    std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> matching;
    std::ranges::copy_if(items, std::back_inserter(matching), [&](const auto &item) {
        return item
                && (keyword.Matches(item->GetDisplayName())
                    || keyword.Matches(item->GetDescription()));
    });
    return matching;
}

std::shared_ptr<IOLFormatNode> MatchingTree(IOLFormatNode &node, const std::string &foldedKeyword)
{
    return MatchingTree(node, Keyword(foldedKeyword));
}

} // namespace Orlimo
