#pragma once

#include <memory>
#include <string>
#include <vector>

namespace Orlimo {

class IOLFmtPresetRecentItem;
class IOLFormatNode;

// How the "Recent" and "Custom" trees are built, and kept in the application's settings: each as
// the base64 text of its JSON text under a key of its own.

inline constexpr char OLRecentPresetsKey[] = "recent_format_preset";
inline constexpr char OLCustomPresetsKey[] = "custom_format_preset";

// Empty where nothing usable is stored under key. A value that cannot be read, perhaps because a
// later version wrote it, goes to the group "unreadable" of the settings when a node is stored in
// its place.
std::shared_ptr<IOLFormatNode> LoadPresetNode(const std::string &key);

// Does nothing without a node or a key.
void StorePresetNode(const std::shared_ptr<IOLFormatNode> &node, const std::string &key);

std::shared_ptr<IOLFormatNode> BuildRecentNode();
std::shared_ptr<IOLFormatNode> BuildCustomNode();

// The recent choices that the "Recent" node holds, newest first; a child without a preset gives
// none.
std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> BuildRecentList(IOLFormatNode &recentRoot);

} // namespace Orlimo
