#pragma once

#include <QByteArrayView>

#include <string>
#include <vector>

namespace Fuzz {

// A preset and a node as plain values: what a search looks at.
struct PlainPreset
{
    std::string name;
    std::string description;

    bool operator==(const PlainPreset &) const = default;
};

struct PlainNode
{
    std::string name;
    std::string description;
    std::vector<PlainPreset> presets;
    std::vector<PlainNode> children;

    bool operator==(const PlainNode &) const = default;
};

// A search, of any bytes. The first line is the keyword. Every other line adds to the tree, by its
// first character: ">" a child, to which the next lines add; "+" a preset; "<" goes back to the
// parent. The rest of the line is a name and, after a tab, a description; other lines are the
// root's name and description.
struct SearchInput
{
    std::string keyword;
    PlainNode root;
};

SearchInput ReadSearchInput(QByteArrayView bytes);

} // namespace Fuzz
