#pragma once

#include "olmediaformatpopup_export.h"

#include <functional>
#include <memory>
#include <string>

namespace Orlimo {

class IOLFormatNode;
class IOLFormatPreset;

/// A rectangle of the desktop in logical pixels.
struct PopupRect
{
    float x;
    float y;
    float width;
    float height;
};

/// A point of the desktop in logical pixels.
struct PopupPoint
{
    float x;
    float y;
};

/// Receives the chosen preset and the format node it was chosen under, or two empty pointers where
/// the popup closed without a choice. Both objects are the picker's own: copy them to change them.
using FmtSelectionCallback = std::function<void(std::shared_ptr<const IOLFormatPreset> preset,
                                                std::shared_ptr<const IOLFormatNode> node)>;

/// The picker of output formats: the front door of the library.
///
/// All operations belong on the GUI thread, with a QApplication there from the first show or edit
/// request on. The windows are made on first use and live for ever; from then on the library stays
/// loaded until the process ends.
class OLMEDIAFORMATPOPUP_EXPORT IOLMediaFormatPopup
{
public:
    IOLMediaFormatPopup();
    IOLMediaFormatPopup(const IOLMediaFormatPopup &other);
    IOLMediaFormatPopup(IOLMediaFormatPopup &&other);
    IOLMediaFormatPopup &operator=(const IOLMediaFormatPopup &other);
    IOLMediaFormatPopup &operator=(IOLMediaFormatPopup &&other);

    /// Returns the process's single picker, which the first call makes. It lives until the library
    /// is unloaded.
    static std::shared_ptr<IOLMediaFormatPopup> Shared();

    /// Starts loading the engine's format description at @p path in the background and returns at
    /// once. The categories appear in the popup when they are there, open or not. A
    /// description that cannot be read is logged and gives no categories; a later call may then
    /// load another one. Once the popup has categories, a later call renews the icons only.
    ///
    /// The path is UTF-8 on every platform, with slashes or, on Windows, backslashes too. A
    /// relative one starts at the working folder of the process, which must stay the same until the
    /// load is over. The artwork file beside it has the same name with the extension icfg.
    ///
    /// Every call must be followed by WaitForFormatDataLoadingComplete() before the next one and
    /// before the library is unloaded; otherwise the process is terminated. Throws
    /// std::system_error if the system has no thread to give.
    static void SetupExternalFormatData(const std::string &path);

    /// Blocks until the load that was started last is over. Does nothing where none was started.
    /// Throws std::system_error when called on the loading thread.
    static void WaitForFormatDataLoadingComplete();

    /// Opens the popup beside @p rect, the place of a control of the host; fractions are cut off,
    /// values that are not numbers count as 0, and values beyond the range of int as its limits.
    ///
    /// @p callback, which may be empty, is called once when the popup closes, inside the event that
    /// closes it. Where the user edits a preset instead, the popup closes first and the callback is
    /// called when the dialog has closed too: with the preset where it was saved, with two empty
    /// pointers where it was not. A choice is among the recent choices and saved before the
    /// callback is called, which may open the popup again or run a dialog. It is kept, with all
    /// that it captures, until the next show request. While the popup is open, a show request moves
    /// it and replaces the callback, and the replaced one is not called. A request that comes while
    /// the popup is just being shown or hidden, as from a handler of changes of the focus, is
    /// carried out when the event loop runs next; of several the last.
    virtual void ShowFormatPopup(const PopupRect &rect, FmtSelectionCallback callback) = 0;

    /// Opens the popup at @p point, as beside a control of one pixel.
    virtual void ShowFormatPopupAt(const PopupPoint &point, FmtSelectionCallback callback) = 0;

    /// Runs the modal dialog that edits the encoders of @p preset, which belongs to the format
    /// @p node, and returns whether the user saved; only then has @p preset changed. Nothing is
    /// kept: the host saves what it wants to survive. Custom presets that the user makes in the
    /// dialog are kept by the data source.
    ///
    /// Without a preset the dialog shows nothing to edit; without a node new custom presets are
    /// filed under the name of the preset's format, or the preset's own name where it has none.
    /// Returns false at once while the dialog is open, and when the host ends its event loop.
    virtual bool EditFormatPreset(std::shared_ptr<IOLFormatPreset> preset,
                                  std::shared_ptr<IOLFormatNode> node) = 0;

protected:
    ~IOLMediaFormatPopup();
};

} // namespace Orlimo
