#include "PresetsLife.h"

#include "IOLAppSettings.h"
#include "IOLBase64Codec.h"
#include "IOLJsonReader.h"
#include "IOLJsonValue.h"

#include <algorithm>
#include <utility>

using namespace Orlimo;

namespace Test {

namespace {

using Kind = PresetsOperation::Kind;

Node ToNode(const PlainNode &plain)
{
    return MakeNode(plain.name, plain.description, plain.faceID);
}

// A preset with the encoders of a format that has several.
Preset ToPreset(const PlainPreset &plain)
{
    const auto preset = MakePreset("MP4", plain.description, plain.faceID);
    preset->SetName(plain.name);
    preset->SetCurrentVideoCodecIndex(plain.videoCodec);
    return preset;
}

// What the caller does with its own objects afterwards is nothing to the data source.
void Spoil(IOLFormatNode &node, IOLFormatPreset &preset)
{
    node.SetName("changed afterwards");
    node.SetFaceID(77);
    preset.SetName("changed afterwards");
    preset.SetCurrentVideoCodecIndex(0);
}

bool IsChoice(const IOLFmtPresetRecentItem &item, const PresetsModel::Choice &choice)
{
    return AttributesOf(*item.GetFormatNode()) == choice.format
            && ToPlain(*item.GetFormatPreset()) == choice.preset
            && item.GetDisplayName() == choice.DisplayName()
            && item.GetDescription() == choice.format.description
            && item.GetFaceID() == choice.format.faceID;
}

std::string Names(const PresetsModel::Choices &choices)
{
    std::string names;
    for (const auto &choice : choices)
        Join(names, choice.DisplayName());
    return names;
}

bool AreChoices(const std::vector<Item> &items, const PresetsModel::Choices &choices)
{
    return std::ranges::equal(items, choices, [](const Item &item, const auto &choice) {
        return IsChoice(*item, choice);
    });
}

// The tree that the settings hold; a node without a name where they hold none.
PlainNode StoredTree(const std::string &value)
{
    const auto root = IOLFormatNode::MallocFormatNode(
            IOLJsonReader::ReadJsonString(IOLBase64Codec::Decode(value), nullptr));
    return root ? ToPlain(*root) : PlainNode();
}

} // namespace

PresetsLife::PresetsLife(PresetsModel &model)
    : m_model(model)
    , m_source(IOLFmtPresetDataSource::Shared())
{
    CheckState();
}

void PresetsLife::Do(const PresetsOperation &operation)
{
    const std::vector<Item> before = m_source->GetRecentItems();
    const bool returned = Apply(operation);
    Verify(returned == m_model.Apply(operation),
           std::string("the call returned ") + (returned ? "true" : "false"));
    RememberRemoved(before);
    CheckSearches(operation);
    CheckState();
}

bool PresetsLife::Apply(const PresetsOperation &operation)
{
    const auto place = static_cast<std::size_t>(operation.place);
    switch (operation.kind) {
    case Kind::AddRecentPreset:
    case Kind::AddRecentItem:
        return AddOwn(operation);
    case Kind::AddListedItem:
        return m_source->AddRecentItem(At(operation.place));
    case Kind::AddRemovedItem:
        return m_source->AddRecentItem(m_removed.at(place));
    case Kind::AddIncompleteItem:
        return AddIncomplete(operation);
    case Kind::RemoveListedItem:
        return m_source->RemoveRecentItem(At(operation.place));
    case Kind::RemoveRemovedItem:
        return m_source->RemoveRecentItem(m_removed.at(place));
    case Kind::RemoveCopyOfListedItem:
        return m_source->RemoveRecentItem(At(operation.place)->Clone());
    case Kind::RemoveByName:
        return m_source->RemoveRecentItemByName(operation.text);
    case Kind::SaveRecent:
        m_source->SaveRecentPresets();
        break;
    case Kind::AddCustom:
        return AddCustom(operation);
    case Kind::RemoveCustom:
        return m_source->RemoveCustomPreset(ToPreset(operation.preset), ToNode(operation.format));
    case Kind::SaveCustom:
        m_source->SaveCustomPresets();
        break;
    case Kind::FilterRecent:
    case Kind::SearchCustom:
        break;
    }
    return true;
}

// The node has a preset and a child of its own, of which the recent choices take neither.
bool PresetsLife::AddOwn(const PresetsOperation &operation)
{
    const Node node = ToNode(operation.format);
    const Preset preset = ToPreset(operation.preset);
    node->AddPreset(MakePreset("another preset"));
    node->AppendChild(MakeNode("a child"));
    const bool added = operation.kind == Kind::AddRecentPreset
            ? m_source->AddRecentPreset(preset, node)
            : m_source->AddRecentItem(MakeItem(preset, node));
    Spoil(*node, *preset);
    return added;
}

bool PresetsLife::AddIncomplete(const PresetsOperation &operation)
{
    const Node node = ToNode(operation.format);
    const Preset preset = ToPreset(operation.preset);
    switch (operation.place) {
    case 0:
        return m_source->AddRecentItem(nullptr);
    case 1:
        return m_source->AddRecentPreset(preset, nullptr);
    case 2:
        return m_source->AddRecentPreset(nullptr, node);
    default:
        return m_source->RemoveRecentItem(nullptr);
    }
}

bool PresetsLife::AddCustom(const PresetsOperation &operation)
{
    const Node node = ToNode(operation.format);
    const Preset preset = ToPreset(operation.preset);
    node->AddPreset(MakePreset("another preset"));
    m_source->AddCustomPreset(preset, node);
    Spoil(*node, *preset);
    return true;
}

Item PresetsLife::At(int place) const
{
    return m_source->GetRecentItems().at(static_cast<std::size_t>(place));
}

// Keeps the item that an operation removed, as a caller may.
void PresetsLife::RememberRemoved(const std::vector<Item> &before)
{
    if (m_model.Removed().size() == m_removed.size())
        return;
    const std::vector<Item> now = m_source->GetRecentItems();
    const auto gone = std::ranges::find_if(before, [&](const Item &item) {
        return std::ranges::count(now, item) == 0;
    });
    Verify(gone != before.end(), "nothing was removed from the list");
    m_removed.push_back(gone != before.end() ? *gone : MakeItem("nothing"));
}

void PresetsLife::CheckSearches(const PresetsOperation &operation)
{
    const std::string &keyword = operation.text;
    if (operation.kind == Kind::FilterRecent) {
        const auto items = m_source->FilterRecentItems(m_source->GetRecentItems(), keyword);
        const auto expected = PresetsModel::Filtered(m_model.Recent(), keyword);
        Verify(AreChoices(items, expected),
               "filtered: " + Test::Names(items) + "\nexpected: " + Names(expected));
    } else if (operation.kind == Kind::SearchCustom) {
        const auto root = m_source->GetCustomFormatNode();
        const Node result = m_source->SearchFormatNode(root, keyword, nullptr);
        const PlainNode found = result ? ToPlain(*result) : PlainNode();
        const PlainNode expected = keyword.empty() ? PlainNode() : Found(m_model.Custom(), keyword);
        Verify(found == expected,
               "found: " + Describe(found) + "\nexpected: " + Describe(expected));
    }
}

void PresetsLife::CheckState()
{
    CheckRecent();
    const auto root = m_source->GetCustomFormatNode();
    Verify(ToPlain(*root) == m_model.Custom(),
           "custom: " + Describe(ToPlain(*root)) + "\nexpected: " + Describe(m_model.Custom()));
    for (int i = 0; i < root->ChildCount(); ++i)
        Verify(root->ChildAt(i)->Parent() == root, "a custom format has another parent");
    CheckStored("recent_format_preset", m_model.StoredRecent(), m_storedRecent);
    CheckStored("custom_format_preset", m_model.StoredCustom(), m_storedCustom);
}

void PresetsLife::CheckRecent()
{
    const std::vector<Item> items = m_source->GetRecentItems();
    const auto &expected = m_model.Recent();
    const bool same = AreChoices(items, expected);
    Verify(same, "recent: " + Test::Names(items) + "\nexpected: " + Names(expected));
    const auto latest = items.empty() ? m_source->GetDefaultRecentItem() : items.front();
    Verify(m_source->GetLatestRecentItem() == latest, "the latest choice is another one");
    Verify(m_source->GetDefaultRecentItem()->GetDisplayName() == "MP4",
           "the default choice has changed");
    if (same)
        CheckItems(items);
}

// A choice is the same object for as long as it is in the list.
void PresetsLife::CheckItems(const std::vector<Item> &items)
{
    std::map<int, Item> itemsNow;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const int child = m_model.Recent()[i].child;
        const auto known = m_items.find(child);
        Verify(known == m_items.end() || known->second == items[i],
               "choice " + std::to_string(i) + " is another object");
        itemsNow.emplace(child, items[i]);
    }
    m_items = std::move(itemsNow);
}

// The settings change with a save only.
void PresetsLife::CheckStored(const char *key, const PlainNode &expected, std::string &lastValue)
{
    const std::string value = IOLAppSettings::Shared()->Value(key);
    if (value == lastValue)
        return;
    lastValue = value;
    const PlainNode stored = StoredTree(value);
    Verify(stored == expected,
           std::string(key) + ": " + Describe(stored) + "\nexpected: " + Describe(expected));
}

void PresetsLife::Verify(bool condition, const std::string &what)
{
    if (!condition && m_difference.empty())
        m_difference = what;
}

} // namespace Test
