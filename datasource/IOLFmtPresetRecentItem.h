#pragma once

#include "olmediaformatpopup_export.h"

#include <memory>
#include <string>

namespace Orlimo {

class IOLArtworkImageGroup;
class IOLFormatNode;
class IOLFormatPreset;

/// One remembered choice: an output preset and the format node under which it was chosen.
///
/// An immutable pair of shared, read-only references; it copies neither object and keeps both
/// alive. May be read on any thread, but for GetArtworkGroup(). Items die only through the shared
/// pointers that the factory and Clone() give; there is no virtual destructor.
class OLMEDIAFORMATPOPUP_EXPORT IOLFmtPresetRecentItem
{
public:
    IOLFmtPresetRecentItem();
    IOLFmtPresetRecentItem(const IOLFmtPresetRecentItem &other);
    IOLFmtPresetRecentItem(IOLFmtPresetRecentItem &&other);
    IOLFmtPresetRecentItem &operator=(const IOLFmtPresetRecentItem &other);
    IOLFmtPresetRecentItem &operator=(IOLFmtPresetRecentItem &&other);

    /// Makes an item of @p preset, chosen under @p node. Either may be empty: without a preset the
    /// item is empty, without a node its description is empty, its face id 0 and its display name
    /// the preset's name.
    static std::shared_ptr<IOLFmtPresetRecentItem> MallocFmtPresetRecentItem(
            std::shared_ptr<const IOLFormatPreset> preset,
            std::shared_ptr<const IOLFormatNode> node);

    /// Returns the node, empty where the item was made without one.
    virtual std::shared_ptr<const IOLFormatNode> GetFormatNode() const = 0;

    /// Returns the preset, empty where the item was made without one.
    virtual std::shared_ptr<const IOLFormatPreset> GetFormatPreset() const = 0;

    /// Returns the preset's name where the node's name occurs in it, otherwise the node's name, a
    /// blank and the preset's name (UTF-8); an empty text for an empty item.
    virtual std::string GetDisplayName() const = 0;

    /// Returns the node's description (UTF-8); an empty text for an empty item.
    virtual std::string GetDescription() const = 0;

    /// Returns the node's artwork face id; 0 for an empty item.
    virtual int GetFaceID() const = 0;

    /// Returns another item of the same preset and node objects.
    virtual std::shared_ptr<IOLFmtPresetRecentItem> Clone() const = 0;

    /// Returns whether this item and @p other, which must not be empty, look the same and remember
    /// equal choices: face ids, descriptions and display names are compared first, then nodes and
    /// presets by their own equality. Two missing nodes or presets are equal.
    virtual bool IsEqual(std::shared_ptr<IOLFmtPresetRecentItem> other) const = 0;

    /// Returns whether the item has no preset; the node does not count.
    bool IsEmpty() const;

    /// Returns the images of GetFaceID() from the data source; empty where there are none. GUI
    /// thread.
    std::shared_ptr<const IOLArtworkImageGroup> GetArtworkGroup() const;

protected:
    ~IOLFmtPresetRecentItem();
};

} // namespace Orlimo
