#pragma once

#include "ui_HostWindow.h"

#include <QMainWindow>

namespace Host {

class FormatChooser;
class HostTranslators;
struct HostLanguage;

// The converter's window: the current output format with its encoder settings, a button for each
// way to change it, and a menu of the languages.
class HostWindow final : public QMainWindow
{
    Q_OBJECT

public:
    // shown is the language that the translators use.
    HostWindow(FormatChooser &chooser, HostTranslators &translators, const HostLanguage &shown);

protected:
    void changeEvent(QEvent *event) override;

private:
    void ConnectButtons();
    void FillLanguageMenu(const HostLanguage &shown);
    void ChooseLanguage(const HostLanguage &language);
    void OpenOutputDialog();
    void ShowCurrent();
    void ShowIcon();
    void ShowSettings();

    Ui::HostWindowClass ui;
    FormatChooser &m_chooser;
    HostTranslators &m_translators;
    QString m_languageOfTabs;
};

} // namespace Host
