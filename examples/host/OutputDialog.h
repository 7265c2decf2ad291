#pragma once

#include "ui_OutputDialog.h"

#include <QDialog>

namespace Host {

class FormatChooser;

// A modal dialog of the host from which the picker opens too.
class OutputDialog final : public QDialog
{
    Q_OBJECT

public:
    OutputDialog(FormatChooser &chooser, QWidget *parent);

private:
    void ShowCurrent();

    Ui::OutputDialogClass ui;
    FormatChooser &m_chooser;
};

} // namespace Host
