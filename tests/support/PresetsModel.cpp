#include "PresetsModel.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace Test {

namespace {

constexpr int formatCount = 5;
constexpr int presetCount = 7;
constexpr int videoCodecCount = 3;
constexpr int manyChoices = 20;

constexpr std::array kindNames {
    "AddRecentPreset",   "AddRecentItem",    "AddListedItem",     "AddRemovedItem",
    "AddIncompleteItem", "RemoveListedItem", "RemoveRemovedItem", "RemoveCopyOfListedItem",
    "RemoveByName",      "SaveRecent",       "AddCustom",         "RemoveCustom",
    "SaveCustom",        "FilterRecent",     "SearchCustom"
};

struct WeightedKind
{
    PresetsOperation::Kind kind;
    int weight;
};

using Kind = PresetsOperation::Kind;
constexpr std::array<WeightedKind, 15> weights { { { Kind::AddRecentPreset, 14 },
                                                   { Kind::AddRecentItem, 10 },
                                                   { Kind::AddListedItem, 5 },
                                                   { Kind::AddRemovedItem, 4 },
                                                   { Kind::AddIncompleteItem, 1 },
                                                   { Kind::RemoveListedItem, 9 },
                                                   { Kind::RemoveRemovedItem, 2 },
                                                   { Kind::RemoveCopyOfListedItem, 2 },
                                                   { Kind::RemoveByName, 7 },
                                                   { Kind::SaveRecent, 1 },
                                                   { Kind::AddCustom, 12 },
                                                   { Kind::RemoveCustom, 14 },
                                                   { Kind::SaveCustom, 1 },
                                                   { Kind::FilterRecent, 6 },
                                                   { Kind::SearchCustom, 6 } } };

bool LookAlike(const PlainPreset &one, const PlainPreset &other)
{
    return one.name == other.name && one.description == other.description
            && one.faceID == other.faceID;
}

template<class Nodes>
auto FindByName(Nodes &nodes, const std::string &name)
{
    return std::ranges::find_if(nodes, [&](const auto &node) { return node.name == name; });
}

} // namespace

std::string PresetsOperation::Describe() const
{
    return std::string(kindNames[kind]) + ' ' + Test::Describe(format) + ' '
            + Test::Describe(preset) + " place " + std::to_string(place) + " text \"" + text + '"';
}

std::string PresetsModel::Choice::DisplayName() const
{
    if (preset.name.find(format.name) != std::string::npos)
        return preset.name;
    return format.name + ' ' + preset.name;
}

bool PresetsModel::Choice::LooksLike(const Choice &other) const
{
    return format == other.format && LookAlike(preset, other.preset);
}

bool PresetsModel::Apply(const PresetsOperation &operation)
{
    const auto place = m_recent.begin() + operation.place;
    switch (operation.kind) {
    case Kind::AddRecentPreset:
    case Kind::AddRecentItem:
    case Kind::AddListedItem:
    case Kind::AddRemovedItem:
        return AddRecent(operation.format, operation.preset);
    case Kind::RemoveListedItem:
        return RemoveRecentAt(place);
    case Kind::RemoveByName:
        return RemoveRecentAt(std::ranges::find_if(m_recent, [&](const Choice &choice) {
            return choice.DisplayName() == operation.text;
        }));
    case Kind::SaveRecent:
        m_storedChildren = m_children;
        return true;
    case Kind::AddCustom:
        AddCustom(operation.format, operation.preset);
        return true;
    case Kind::RemoveCustom:
        return RemoveCustom(operation.format.name, operation.preset.name);
    case Kind::SaveCustom:
        m_storedCustom = m_custom;
        return true;
    case Kind::AddIncompleteItem:
    case Kind::RemoveRemovedItem:
    case Kind::RemoveCopyOfListedItem:
        return false;
    case Kind::FilterRecent:
    case Kind::SearchCustom:
        break;
    }
    return true;
}

void PresetsModel::Restart()
{
    m_children = m_storedChildren;
    m_recent.assign(m_children.rbegin(), m_children.rend());
    m_custom = m_storedCustom;
    m_removed.clear();
}

bool PresetsModel::AddRecent(const PlainNode &format, const PlainPreset &preset)
{
    const Choice choice { ++m_lastChild, format, preset };
    const auto same = std::ranges::find_if(m_recent, [&](const Choice &other) {
        return other.LooksLike(choice);
    });
    if (same != m_recent.end()) {
        std::erase_if(m_children, [&](const Choice &child) { return child.child == same->child; });
        m_recent.erase(same);
    }
    m_children.push_back(choice);
    m_recent.insert(m_recent.begin(), choice);
    return true;
}

// The child goes that has the position of the choice in the list, though the two run in opposite
// directions.
bool PresetsModel::RemoveRecentAt(Choices::const_iterator place)
{
    if (place == m_recent.end())
        return false;
    const auto position = place - m_recent.begin();
    m_removed.push_back(*place);
    m_recent.erase(place);
    if (position < std::ssize(m_children))
        m_children.erase(m_children.begin() + position);
    return true;
}

void PresetsModel::AddCustom(const PlainNode &format, const PlainPreset &preset)
{
    auto place = FindByName(m_custom.children, format.name);
    if (place == m_custom.children.end())
        place = m_custom.children.insert(place, format);
    place->presets.push_back(preset);
}

bool PresetsModel::RemoveCustom(const std::string &format, const std::string &preset)
{
    const auto node = FindByName(m_custom.children, format);
    if (node == m_custom.children.end())
        return false;
    const auto place = FindByName(node->presets, preset);
    if (place == node->presets.end())
        return false;
    node->presets.erase(place);
    if (node->presets.empty())
        m_custom.children.erase(node);
    return true;
}

PlainNode PresetsModel::StoredRecent() const
{
    PlainNode root { "Recent", "Recent Selection", 1, {}, {} };
    for (const Choice &choice : m_storedChildren) {
        root.children.push_back(choice.format);
        root.children.back().presets.push_back(choice.preset);
    }
    return root;
}

PresetsModel::Choices PresetsModel::Filtered(const Choices &choices, const std::string &keyword)
{
    Choices matching;
    std::ranges::copy_if(choices, std::back_inserter(matching), [&](const Choice &choice) {
        return ContainsInAnyCase(choice.DisplayName(), keyword)
                || ContainsInAnyCase(choice.format.description, keyword);
    });
    return matching;
}

PresetsOperations::PresetsOperations(unsigned seed)
    : m_random(seed)
{
    for (int i = 0; i < formatCount; ++i)
        m_formats.push_back(
                { RandomText(m_random, 2), RandomText(m_random, 2), m_random.Below(2), {}, {} });
    for (int i = 0; i < presetCount; ++i)
        m_presets.push_back(
                { RandomText(m_random, 3), RandomText(m_random, 2), m_random.Below(2), 0 });
}

PresetsOperation PresetsOperations::Next(const PresetsModel &model)
{
    PresetsOperation operation { m_random.PickWeighted(weights).kind,
                                 m_random.Pick(m_formats),
                                 m_random.Pick(m_presets),
                                 0,
                                 {} };
    operation.preset.videoCodec = m_random.Below(videoCodecCount);
    const auto &recent = model.Recent();
    if (recent.size() > manyChoices && operation.kind == Kind::AddRecentPreset)
        operation.kind = Kind::RemoveListedItem;

    const auto takeFrom = [&](const PresetsModel::Choices &choices) {
        operation.place = m_random.Below(static_cast<int>(choices.size()));
        const auto &choice = choices[static_cast<std::size_t>(operation.place)];
        operation.format = choice.format;
        operation.preset = choice.preset;
    };
    switch (operation.kind) {
    case Kind::AddListedItem:
    case Kind::RemoveListedItem:
    case Kind::RemoveCopyOfListedItem:
        if (recent.empty())
            operation.kind = Kind::AddRecentPreset;
        else
            takeFrom(recent);
        break;
    case Kind::AddRemovedItem:
    case Kind::RemoveRemovedItem:
        if (model.Removed().empty())
            operation.kind = Kind::AddRecentItem;
        else
            takeFrom(model.Removed());
        break;
    case Kind::AddIncompleteItem:
        operation.place = m_random.Below(4);
        break;
    case Kind::RemoveByName:
        operation.text = NameFor(model);
        break;
    case Kind::FilterRecent:
    case Kind::SearchCustom:
        operation.text = RandomText(m_random, 2);
        break;
    default:
        break;
    }
    return operation;
}

// The name of a choice mostly, which can be that of several, or of none.
std::string PresetsOperations::NameFor(const PresetsModel &model)
{
    if (model.Recent().empty() || m_random.OneIn(4))
        return RandomText(m_random, 3);
    return m_random.Pick(model.Recent()).DisplayName();
}

} // namespace Test
