#pragma once

#include "IOLMediaFormatPopup.h"

#include <atomic>

class QRect;

namespace Orlimo {

class RPFmtSelectionDlg;

class OLMediaFormatPopupWin final : public IOLMediaFormatPopup
{
public:
    void ShowFormatPopup(const PopupRect &rect, FmtSelectionCallback callback) override;
    void ShowFormatPopupAt(const PopupPoint &point, FmtSelectionCallback callback) override;
    bool EditFormatPreset(std::shared_ptr<IOLFormatPreset> preset,
                          std::shared_ptr<IOLFormatNode> node) override;

    // Has the popup, if there is one, take up the loaded format data in its own thread. Called on
    // the loading thread.
    void PostFormatDataLoaded();

private:
    void Show(const QRect &anchor, FmtSelectionCallback callback);
    void TakeUpFormatData(RPFmtSelectionDlg *popup);
    bool HasFormatData(const RPFmtSelectionDlg &popup) const;

    // Written on the GUI thread, read on the loading thread; never destroyed.
    std::atomic<RPFmtSelectionDlg *> m_selectionPopup = nullptr;
    bool m_hasTree = false; // the popup has taken up the format tree, perhaps without categories
};

} // namespace Orlimo
