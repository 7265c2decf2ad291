#include "OLFmtPresetSearch.h"

#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLStringHelper.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Orlimo {

namespace {

constexpr int cloneAttributes = 1;
constexpr std::size_t longestShortKeyword = 32;

// A long keyword is found by the algorithm of Knuth, Morris and Pratt: in a time that grows with
// the text only, however much keyword and text repeat themselves. For a short one the standard
// library is faster, and cannot lose more time than its length allows.
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
        if (m_folded.size() <= longestShortKeyword)
            return foldedText.find(m_folded) != std::string::npos;
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

// The result of the search in one node, which is made for its first match.
class MatchesOf
{
public:
    explicit MatchesOf(const IOLFormatNode &node)
        : m_node(node)
    {
    }

    void Add(std::shared_ptr<IOLFormatPreset> preset) { Copy().AddPreset(std::move(preset)); }
    void Add(std::shared_ptr<IOLFormatNode> child) { Copy().AppendChild(std::move(child)); }

    // Empty where nothing matched.
    std::shared_ptr<IOLFormatNode> Take() { return std::move(m_copy); }

private:
    IOLFormatNode &Copy()
    {
        if (!m_copy)
            m_copy = m_node.Clone(cloneAttributes);
        return *m_copy;
    }

    const IOLFormatNode &m_node;
    std::shared_ptr<IOLFormatNode> m_copy;
};

std::shared_ptr<IOLFormatNode> MatchesBelow(IOLFormatNode &node, const Keyword &keyword)
{
    MatchesOf matches(node);
    for (int i = 0; i < node.PresetCount(); ++i) {
        const auto preset = node.PresetAt(i);
        if (keyword.Matches(*preset))
            matches.Add(preset->Clone());
    }
    for (int i = 0; i < node.ChildCount(); ++i) {
        const auto child = node.ChildAt(i);
        if (keyword.Matches(child->Name()))
            matches.Add(child->Clone(IOLFormatNode::CloneAll));
        else if (auto below = MatchesBelow(*child, keyword))
            matches.Add(std::move(below));
    }
    return matches.Take();
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
    const auto matches = MatchesBelow(node, Keyword(foldedKeyword));
    return matches ? matches : node.Clone(cloneAttributes);
}

} // namespace Orlimo
