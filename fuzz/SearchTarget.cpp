#include "FuzzTargets.h"

#include "Require.h"
#include "SearchReference.h"

#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLStringHelper.h"
#include "OLFmtPresetDataSource.h"

using Orlimo::IOLFmtPresetRecentItem;
using Orlimo::IOLFormatNode;
using Orlimo::IOLFormatPreset;
using Orlimo::IOLStringHelper;
using Orlimo::OLFmtPresetDataSource;

namespace Fuzz {

namespace {

using Node = std::shared_ptr<IOLFormatNode>;
using Items = std::vector<std::shared_ptr<IOLFmtPresetRecentItem>>;

std::shared_ptr<IOLFormatPreset> ToPreset(const PlainPreset &plain)
{
    auto preset = IOLFormatPreset::MallocFormatPreset({}, plain.description);
    preset->SetName(plain.name);
    return preset;
}

Node ToNode(const PlainNode &plain)
{
    Node node = IOLFormatNode::MallocFormatNode(Node());
    node->SetName(plain.name);
    node->SetDescription(plain.description);
    for (const PlainPreset &preset : plain.presets)
        node->AddPreset(ToPreset(preset));
    for (const PlainNode &child : plain.children)
        node->AppendChild(ToNode(child));
    return node;
}

PlainNode FromNode(const IOLFormatNode &node)
{
    PlainNode plain { node.Name(), node.Description(), {}, {} };
    for (int i = 0; i < node.PresetCount(); ++i) {
        const auto preset = node.PresetAt(i);
        plain.presets.push_back({ preset->Name(), preset->Description() });
    }
    for (int i = 0; i < node.ChildCount(); ++i)
        plain.children.push_back(FromNode(*node.ChildAt(i)));
    return plain;
}

void CheckFolding(const std::string &text)
{
    const std::string lowered = IOLStringHelper::ToLower(text);
    Require(lowered == Lowered(text), "every character becomes its lower case");
    Require(IOLStringHelper::ToLower(lowered) == lowered, "a text in lower case stays as it is");
}

void CheckSearch(const OLFmtPresetDataSource &dataSource, const SearchInput &input)
{
    const Node tree = ToNode(input.root);
    const Node found = dataSource.SearchFormatNode(tree, input.keyword, nullptr);
    Require(!found == input.keyword.empty(), "every keyword but the empty one gives a tree");
    Require(!found || FromNode(*found) == SearchResult(input.root, Lowered(input.keyword)),
            "a search finds what its rules say");
    Require(FromNode(*tree) == input.root, "a search leaves the tree as it is");
}

void CheckFilter(const OLFmtPresetDataSource &dataSource, const SearchInput &input)
{
    Items items;
    Items expected;
    const std::string keyword = Lowered(input.keyword);
    for (const PlainRecent &choice : RecentChoices(input.root)) {
        const Node node = ToNode({ choice.node->name, choice.node->description, {}, {} });
        items.push_back(
                IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(ToPreset(*choice.preset), node));
        if (IsKept(choice, keyword))
            expected.push_back(items.back());
    }
    Require(dataSource.FilterRecentItems(items, input.keyword) == expected,
            "the filter keeps what its rules say");
}

} // namespace

void Search(QByteArrayView bytes)
{
    static const OLFmtPresetDataSource dataSource;
    CheckFolding(std::string(bytes.data(), std::size_t(bytes.size())));
    const SearchInput input = ReadSearchInput(bytes);
    CheckSearch(dataSource, input);
    CheckFilter(dataSource, input);
}

} // namespace Fuzz
