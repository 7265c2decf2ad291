#pragma once

#include "olmediaformatpopup_export.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Orlimo {

class IOLArtworkImageGroup;
class IOLFmtPresetRecentItem;
class IOLFormatNode;
class IOLFormatPreset;

/// The model behind the picker: the engine's format tree and icons, the recent choices, the user's
/// custom presets and a built-in default entry.
///
/// All operations belong on the GUI thread. Changes to the recent choices and the custom presets
/// stay in memory until they are saved by SaveRecentPresets() and SaveCustomPresets(). What the
/// operations return lives as long as the shared pointers to it.
class OLMEDIAFORMATPOPUP_EXPORT IOLFmtPresetDataSource
{
public:
    IOLFmtPresetDataSource();
    IOLFmtPresetDataSource(const IOLFmtPresetDataSource &other);
    IOLFmtPresetDataSource(IOLFmtPresetDataSource &&other);
    IOLFmtPresetDataSource &operator=(const IOLFmtPresetDataSource &other);
    IOLFmtPresetDataSource &operator=(IOLFmtPresetDataSource &&other);

    /// Returns the process's single data source. The first call makes it, which reads the recent
    /// choices and custom presets from IOLAppSettings; a stored value that cannot be read gives an
    /// empty tree and stays as it is until the next save. It is destroyed when the library is
    /// unloaded, or when the process ends.
    static std::shared_ptr<IOLFmtPresetDataSource> Shared();

    /// Starts loading the format description at @p path (docs/format-tree.md gives its layout) and
    /// opens the artwork file beside it, of the same name with the extension icfg.
    ///
    /// The path is UTF-8 on every platform, with slashes or, on Windows, backslashes too. A
    /// relative one starts at the working folder of the process, which must stay the same until the
    /// load is over.
    ///
    /// The artwork is there when the call returns; it replaces any earlier one. The description is
    /// parsed in the background; when that is over, whether it went well or not, @p onLoaded, which
    /// must not be empty, is called on the loading thread; it must not throw, and what it captures
    /// is destroyed there. A description that cannot be read logs "Failed load external format"
    /// with its path as it was given and gives no tree; one that is JSON but breaks the layout
    /// gives none and logs nothing.
    ///
    /// Every call must be followed by WaitForLoadingComplete() before the next call and before the
    /// library is unloaded; otherwise the process is terminated. Throws std::system_error if the
    /// system has no thread to give.
    virtual void AsyncLoadExternalDataSource(const std::string &path,
                                             std::function<void()> onLoaded) = 0;

    /// Blocks until the load that was started last is over and its action has returned. Does
    /// nothing where none was started. Throws std::system_error when called on the loading thread.
    virtual void WaitForLoadingComplete() = 0;

    /// Returns the engine's format tree, collecting it first from a load that is over; empty before
    /// and after a failed load. Waits for the load 1 millisecond at most. Once there is a tree it
    /// is never replaced.
    virtual std::shared_ptr<IOLFormatNode> GetDefaultFormatNode() = 0;

    /// Returns the newest recent choice, or the built-in entry where there is none; never empty.
    virtual std::shared_ptr<IOLFmtPresetRecentItem> GetLatestRecentItem() const = 0;

    /// Returns the built-in MP4 entry; never empty.
    virtual std::shared_ptr<IOLFmtPresetRecentItem> GetDefaultRecentItem() const = 0;

    /// Returns the recent choices, the newest first.
    virtual std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> GetRecentItems() const = 0;

    /// Puts a copy of the choice of @p preset under @p node first among the recent choices, as
    /// AddRecentItem() does.
    virtual bool AddRecentPreset(std::shared_ptr<const IOLFormatPreset> preset,
                                 std::shared_ptr<const IOLFormatNode> node) = 0;

    /// Puts a copy of @p item, which is not itself kept, first among the recent choices and drops
    /// the one that equals it. Returns true; returns false and changes nothing where the item, its
    /// preset or its node is empty. The number of recent choices is not limited.
    virtual bool AddRecentItem(std::shared_ptr<IOLFmtPresetRecentItem> item) = 0;

    /// Removes the recent choice that is this very @p item; returns whether there was one.
    ///
    /// What is saved afterwards can lack another choice than the removed one: the stored tree runs
    /// from the oldest to the newest and drops the child at the position that the choice had in the
    /// list.
    virtual bool RemoveRecentItem(std::shared_ptr<IOLFmtPresetRecentItem> item) = 0;

    /// Removes the first recent choice whose display name is @p name (UTF-8), byte by byte, as
    /// RemoveRecentItem() does; returns whether there was one.
    virtual bool RemoveRecentItemByName(const std::string &name) = 0;

    /// Writes the recent choices to IOLAppSettings under "recent_format_preset" at once. A failure
    /// is logged by the settings.
    virtual void SaveRecentPresets() = 0;

    /// Returns the "Custom" node, which has a child for every format with custom presets; never
    /// empty.
    virtual std::shared_ptr<IOLFormatNode> GetCustomFormatNode() = 0;
    /// Returns the "Custom" node.
    virtual std::shared_ptr<IOLFormatNode> GetCustomFormatNode() const = 0;

    /// Adds a copy of @p preset to the custom presets of the format that @p node is, found by name.
    /// Presets of the same name may stand side by side. Does nothing where either is empty.
    virtual void AddCustomPreset(std::shared_ptr<const IOLFormatPreset> preset,
                                 std::shared_ptr<const IOLFormatNode> node) = 0;

    /// Removes the first custom preset with the name of @p preset from the format with the name of
    /// @p node, and the format when it has no more; returns whether there was such a preset.
    virtual bool RemoveCustomPreset(std::shared_ptr<const IOLFormatPreset> preset,
                                    std::shared_ptr<const IOLFormatNode> node) = 0;

    /// Writes the custom presets to IOLAppSettings under "custom_format_preset" at once. A failure
    /// is logged by the settings.
    virtual void SaveCustomPresets() = 0;

    /// Returns the images of @p faceID; empty where there are none and before artwork is loaded.
    virtual std::shared_ptr<const IOLArtworkImageGroup> GetArtworkGroup(int faceID) const = 0;

    /// Returns those of @p items whose display name or description contains @p keyword (UTF-8) in
    /// any letter case, in their order; all of them for an empty keyword.
    virtual std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> FilterRecentItems(
            const std::vector<std::shared_ptr<IOLFmtPresetRecentItem>> &items,
            const std::string &keyword) const = 0;

    /// Returns a copy of the tree @p node with only what matches @p keyword (UTF-8) in any letter
    /// case: presets by name or description, children by name with their whole subtree. Children
    /// that neither match nor hold what matches are left out, and the order is the tree's. Empty
    /// where @p node or the keyword is. @p parent, the node that is to receive the result, may be
    /// empty and is not changed.
    virtual std::shared_ptr<IOLFormatNode> SearchFormatNode(
            std::shared_ptr<IOLFormatNode> node, const std::string &keyword,
            std::shared_ptr<IOLFormatNode> parent) const = 0;

protected:
    ~IOLFmtPresetDataSource();
};

} // namespace Orlimo
