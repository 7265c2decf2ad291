#pragma once

#include <memory>
#include <string>
#include <vector>

namespace Orlimo {

class IOLFmtPresetRecentItem;
class IOLFormatNode;

// Matching for the search box. A text matches where the folded keyword occurs in the folded text,
// byte by byte; keywords are folded by IOLStringHelper::ToLower() already and not empty.

std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> MatchingRecentItems(
        const std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> &items,
        const std::string &foldedKeyword);

// A copy of node with its matching presets, its matching children whole, and of its other children
// what matches below them. It may have neither presets nor children. The node is not changed.
std::shared_ptr<IOLFormatNode> MatchingTree(IOLFormatNode &node, const std::string &foldedKeyword);

} // namespace Orlimo
