#pragma once

#include "ui_HostWindow.h"

#include <QWidget>

namespace Host {

class FormatChooser;

// The converter's window: the current output format with its encoder settings, and a button for
// each way to change it.
class HostWindow final : public QWidget
{
    Q_OBJECT

public:
    explicit HostWindow(FormatChooser &chooser);

private:
    void ConnectButtons();
    void OpenOutputDialog();
    void ShowCurrent();
    void ShowIcon();
    void ShowSettings();

    Ui::HostWindowClass ui;
    FormatChooser &m_chooser;
};

} // namespace Host
