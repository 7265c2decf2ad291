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

bool Matches(const std::string &text, const std::string &foldedKeyword)
{
    return IOLStringHelper::ToLower(text).find(foldedKeyword) != std::string::npos;
}

bool Matches(const IOLFormatPreset &preset, const std::string &foldedKeyword)
{
    return Matches(preset.Name(), foldedKeyword) || Matches(preset.Description(), foldedKeyword);
}

bool IsEmpty(const IOLFormatNode &node)
{
    return node.PresetCount() == 0 && node.ChildCount() == 0;
}

} // namespace

std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> MatchingRecentItems(
        const std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> &items,
        const std::string &foldedKeyword)
{
    std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> matching;
    std::ranges::copy_if(items, std::back_inserter(matching), [&](const auto &item) {
        return item
                && (Matches(item->GetDisplayName(), foldedKeyword)
                    || Matches(item->GetDescription(), foldedKeyword));
    });
    return matching;
}

std::shared_ptr<IOLFormatNode> MatchingTree(const IOLFormatNode &node,
                                            const std::string &foldedKeyword)
{
    auto result = node.Clone(cloneAttributes);
    for (int i = 0; i < node.PresetCount(); ++i) {
        const auto preset = node.PresetAt(i);
        if (Matches(*preset, foldedKeyword))
            result->AddPreset(preset->Clone());
    }
    for (int i = 0; i < node.ChildCount(); ++i) {
        const auto child = node.ChildAt(i);
        if (Matches(child->Name(), foldedKeyword)) {
            result->AppendChild(child->Clone(IOLFormatNode::CloneAll));
            continue;
        }
        const auto below = MatchingTree(*child, foldedKeyword);
        if (!IsEmpty(*below))
            result->AppendChild(below);
    }
    return result;
}

} // namespace Orlimo
