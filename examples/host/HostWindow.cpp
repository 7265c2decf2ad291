#include "HostWindow.h"

#include "EncoderSettings.h"
#include "FormatChooser.h"
#include "FormatText.h"
#include "OutputDialog.h"

#include "IOLArtworkImageGroup.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatPreset.h"

#include <QCursor>
#include <QHeaderView>

namespace Host {

namespace {

constexpr QSize iconSize { 48, 48 };

} // namespace

HostWindow::HostWindow(FormatChooser &chooser)
    : m_chooser(chooser)
{
    ui.setupUi(this);
    ui.tblSettings->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    ConnectButtons();
    connect(&m_chooser, &FormatChooser::CurrentChanged, this, &HostWindow::ShowCurrent);
    ShowCurrent();
}

void HostWindow::ConnectButtons()
{
    connect(ui.btnPick, &QPushButton::clicked, this, [this] { m_chooser.PickBeside(*ui.btnPick); });
    connect(ui.btnPickAtMouse, &QPushButton::clicked, this,
            [this] { m_chooser.PickAt(QCursor::pos()); });
    connect(ui.btnPickInDialog, &QPushButton::clicked, this, &HostWindow::OpenOutputDialog);
    connect(ui.btnEdit, &QPushButton::clicked, &m_chooser, &FormatChooser::EditCopy);
}

void HostWindow::OpenOutputDialog()
{
    OutputDialog(m_chooser, this).exec();
}

void HostWindow::ShowCurrent()
{
    ShowIcon();
    ui.lblName->setText(FormatText(m_chooser.Current().GetDisplayName()));
    ui.lblDescription->setText(FormatText(m_chooser.Current().GetDescription()));
    ShowSettings();
}

void HostWindow::ShowIcon()
{
    const auto images = m_chooser.Current().GetArtworkGroup();
    ui.lblIcon->setPixmap(images ? images->Icon().pixmap(iconSize, devicePixelRatio()) : QPixmap());
}

void HostWindow::ShowSettings()
{
    const auto settings = EncoderSettingsOf(*m_chooser.Current().GetFormatPreset());
    ui.tblSettings->setRowCount(0);
    for (const EncoderSetting &setting : settings) {
        const int row = ui.tblSettings->rowCount();
        ui.tblSettings->insertRow(row);
        ui.tblSettings->setItem(row, 0, new QTableWidgetItem(setting.name));
        ui.tblSettings->setItem(row, 1, new QTableWidgetItem(setting.text));
        ui.tblSettings->setItem(row, 2, new QTableWidgetItem(setting.value));
    }
}

} // namespace Host
