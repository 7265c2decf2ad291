#include "OutputDialog.h"

#include "FormatChooser.h"
#include "FormatText.h"

#include "IOLFmtPresetRecentItem.h"

namespace Host {

OutputDialog::OutputDialog(FormatChooser &chooser, QWidget *parent)
    : QDialog(parent)
    , m_chooser(chooser)
{
    ui.setupUi(this);
    connect(ui.btnPickHere, &QPushButton::clicked, this,
            [this] { m_chooser.PickBeside(*ui.btnPickHere); });
    connect(ui.btnClose, &QPushButton::clicked, this, &QDialog::accept);
    connect(&m_chooser, &FormatChooser::CurrentChanged, this, &OutputDialog::ShowCurrent);
    ShowCurrent();
}

void OutputDialog::ShowCurrent()
{
    ui.lblFormat->setText(ChoiceText(m_chooser.Current()));
}

} // namespace Host
