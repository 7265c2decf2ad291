#pragma once

#include <QColor>

#include <initializer_list>
#include <map>
#include <memory>

namespace Orlimo {
class IOLFormatNode;
}

namespace Test {

// Gives the process's data source artwork of one-coloured squares, by face id and in these sizes.
void LoadArtwork(const std::map<int, QColor> &colors, std::initializer_list<int> sizes);

// The tree that the settings file holds under key; empty where it holds none.
std::shared_ptr<Orlimo::IOLFormatNode> StoredTree(const char *key);

// Removes what the settings file holds under key.
void ForgetStoredTree(const char *key);

} // namespace Test
