#pragma once

#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <QTest>

#include <memory>
#include <string>
#include <vector>

template<>
inline char *QTest::toString(const std::string &text)
{
    return qstrdup(text.c_str());
}

namespace Test {

using Node = std::shared_ptr<Orlimo::IOLFormatNode>;
using Preset = std::shared_ptr<Orlimo::IOLFormatPreset>;
using Item = std::shared_ptr<Orlimo::IOLFmtPresetRecentItem>;

inline Node MakeNode(const std::string &name, const std::string &description = {}, int faceID = 0)
{
    auto node = Orlimo::IOLFormatNode::MallocFormatNode(Node());
    node->SetName(name);
    node->SetDescription(description);
    node->SetFaceID(faceID);
    return node;
}

inline Preset MakePreset(const std::string &name, const std::string &description = {},
                         int faceID = 0)
{
    auto preset = Orlimo::IOLFormatPreset::MallocFormatPreset(name, description);
    preset->SetFaceID(faceID);
    return preset;
}

inline Item MakeItem(std::shared_ptr<const Orlimo::IOLFormatPreset> preset,
                     std::shared_ptr<const Orlimo::IOLFormatNode> node)
{
    return Orlimo::IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(std::move(preset),
                                                                     std::move(node));
}

// An item whose display name is name.
inline Item MakeItem(const std::string &name)
{
    return MakeItem(MakePreset(name), MakeNode(name, name + " Format"));
}

inline void Join(std::string &names, const std::string &name)
{
    names += (names.empty() ? "" : ", ") + name;
}

// The display names, separated by commas.
inline std::string Names(const std::vector<Item> &items)
{
    std::string names;
    for (const Item &item : items)
        Join(names, item->GetDisplayName());
    return names;
}

inline std::string ChildNames(const Orlimo::IOLFormatNode &node)
{
    std::string names;
    for (int i = 0; i < node.ChildCount(); ++i)
        Join(names, node.ChildAt(i)->Name());
    return names;
}

inline std::string PresetNames(const Orlimo::IOLFormatNode &node)
{
    std::string names;
    for (int i = 0; i < node.PresetCount(); ++i)
        Join(names, node.PresetAt(i)->Name());
    return names;
}

} // namespace Test
