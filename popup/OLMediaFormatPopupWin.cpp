#include "OLMediaFormatPopupWin.h"

#include "IOLFmtPresetDataSource.h"
#include "OLLibraryPin.h"
#include "OLPopupAnchor.h"
#include "RPFmtEditingDlg.h"
#include "RPFmtSelectionDlg.h"

#include <utility>

namespace Orlimo {

void OLMediaFormatPopupWin::ShowFormatPopup(const PopupRect &rect, FmtSelectionCallback callback)
{
    Show(ToAnchor(rect), std::move(callback));
}

void OLMediaFormatPopupWin::ShowFormatPopupAt(const PopupPoint &point,
                                              FmtSelectionCallback callback)
{
    Show(ToAnchor(point), std::move(callback));
}

bool OLMediaFormatPopupWin::EditFormatPreset(std::shared_ptr<IOLFormatPreset> preset,
                                             std::shared_ptr<IOLFormatNode> node)
{
    KeepLibraryLoaded();
    return RPFmtEditingDlg::EditPreset(std::move(preset), std::move(node));
}

void OLMediaFormatPopupWin::PostFormatDataLoaded()
{
    RPFmtSelectionDlg *popup = m_selectionPopup;
    if (popup) {
        QMetaObject::invokeMethod(
                popup, [this, popup] { TakeUpFormatData(popup); }, Qt::AutoConnection);
    }
}

// The popup adds the categories whenever it is asked to. It is asked after the load and after it
// was made, in either order, so only the first time that there is a tree counts. A load may end
// between the two looks at the tree here.
void OLMediaFormatPopupWin::TakeUpFormatData(RPFmtSelectionDlg *popup)
{
    if (HasFormatData(*popup)) {
        popup->OnArtworkRenewed();
        return;
    }
    m_hasTree = IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode() != nullptr;
    popup->OnFormatDataLoaded();
}

bool OLMediaFormatPopupWin::HasFormatData(const RPFmtSelectionDlg &popup) const
{
    return m_hasTree || popup.HasCategories();
}

// A load that ends while the popup is being made finds no popup to tell, so its result is looked
// for once more.
void OLMediaFormatPopupWin::Show(const QRect &anchor, FmtSelectionCallback callback)
{
    if (!m_selectionPopup) {
        KeepLibraryLoaded();
        m_selectionPopup = new RPFmtSelectionDlg;
    }
    RPFmtSelectionDlg *popup = m_selectionPopup;
    if (!HasFormatData(*popup) && IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode())
        TakeUpFormatData(popup);
    popup->ShowPopup(std::move(callback), anchor);
}

} // namespace Orlimo
