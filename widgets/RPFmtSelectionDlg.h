#pragma once

#include "ui_RPFmtSelectionDlg.h"

#include <QIcon>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

class QLineEdit;

namespace Orlimo {

class IOLFormatNode;
class IOLFormatPreset;
class RPFmtNodeWdg;
class RPFmtRecentListWdg;

// The popup in which the user picks an output format: a tab of recent choices, one for each
// category of the format tree, one of custom presets, and a search box for the current tab.
//
// It is made once, hidden after every choice, and never destroyed. Every closing is reported once.
class RPFmtSelectionDlg final : public QWidget
{
    Q_OBJECT

public:
    // Receives the preset and the node it belongs to, or two empty pointers for no choice.
    using Callback = std::function<void(std::shared_ptr<const IOLFormatPreset>,
                                        std::shared_ptr<const IOLFormatNode>)>;

    RPFmtSelectionDlg();
    ~RPFmtSelectionDlg() override;

    // Opens the popup beside anchor, which is in desktop coordinates. While it is open, this moves
    // it and replaces the callback.
    void ShowPopup(Callback callback, const QRect &anchor);

    // Adds the categories once there is a format tree, each time it is called.
    void OnFormatDataLoaded();

    // Shows the data source's new artwork. The tabs are those of the format tree's categories.
    void OnArtworkRenewed();

    bool HasCategories() const;

public Q_SLOTS:
    void SearchTextChanged(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void InitRecentFmtList();
    void InitCustomFmtNode();
    void InitDefaultFormatNode();
    void InitSearchEdit();
    void InitEditingDlg();
    void AddCategory(const std::shared_ptr<IOLFormatNode> &category);
    RPFmtNodeWdg *CreateNodeWdg(int tab, const QIcon &icon, const QString &text);
    void WatchFocus(RPFmtNodeWdg *page);
    void ReportSelectionsOf(RPFmtNodeWdg *page);

    void OnTabChanged(int index);
    void RefreshCustomTab();
    void SelectFirstTab();
    void RenewListIcons();
    void Activate();
    void CloseIfLeft();
    void StayInPlace();
    void PlaceSearchEdit();
    RPFmtRecentListWdg *RecentPage() const;
    RPFmtNodeWdg *CurrentNodePage() const;

    void Edit(std::shared_ptr<IOLFormatPreset> preset, std::shared_ptr<IOLFormatNode> node);
    void Choose(std::shared_ptr<const IOLFormatPreset> preset,
                std::shared_ptr<const IOLFormatNode> node);
    void OnFormatSelected(std::shared_ptr<const IOLFormatPreset> preset,
                          std::shared_ptr<const IOLFormatNode> node);
    void Report(const Callback &callback, std::shared_ptr<const IOLFormatPreset> preset,
                std::shared_ptr<const IOLFormatNode> node);
    void CloseWithoutChoice();
    void HideQuietly();
    void PostRequestedShow();
    void NoticePageSwitch(const QWidget *focusLoser);

    Ui::RPFmtSelectionDlgClass ui;
    Callback selectCallback;
    QLineEdit *searchEdit = nullptr;
    std::function<void()> requestedShow; // asked for while showing or hiding, if it was
    QTimer settling;                     // the window system may still tell of an earlier focus
    bool lossHeldBack = false;           // what it tells of the focus was put off until then
    QPoint place;                        // where the popup was last opened
    int corrections = 0;                 // how often it was put back there
    int openings = 0;                    // how often the popup was shown
    bool selecting = false;              // a choice is being reported or a preset edited
    bool changingVisibility = false; // focus changes come from showing or hiding the popup itself
    bool switchingPage = false;      // focus changes come from the change to another tab
};

} // namespace Orlimo
