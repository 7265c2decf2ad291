#include "HostWindow.h"

#include "EncoderSettings.h"
#include "FormatChooser.h"
#include "FormatText.h"
#include "HostLanguage.h"
#include "HostTranslators.h"
#include "OutputDialog.h"

#include "IOLArtworkImageGroup.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatPreset.h"

#include <QActionGroup>
#include <QCursor>
#include <QHeaderView>

namespace Host {

namespace {

constexpr QSize formatIconSize { 48, 48 };

} // namespace

HostWindow::HostWindow(FormatChooser &chooser, HostTranslators &translators,
                       const HostLanguage &shown)
    : m_chooser(chooser)
    , m_translators(translators)
    , m_languageOfTabs(shown.name)
{
    ui.setupUi(this);
    ui.lblNote->hide();
    FillLanguageMenu(shown);
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

void HostWindow::FillLanguageMenu(const HostLanguage &shown)
{
    auto *languages = new QActionGroup(this);
    for (const HostLanguage &language : HostLanguages()) {
        QAction *action = languages->addAction(language.name);
        action->setCheckable(true);
        action->setChecked(language.name == shown.name);
        connect(action, &QAction::triggered, this, [this, &language] { ChooseLanguage(language); });
    }
    ui.menuLanguage->addActions(languages->actions());
}

// The picker names its tabs and its search box when it is first opened.
void HostWindow::ChooseLanguage(const HostLanguage &language)
{
    m_translators.Use(language);
    RememberHostLanguage(language);
    if (!m_chooser.HasPicked())
        m_languageOfTabs = language.name;
    ui.lblNote->setVisible(language.name != m_languageOfTabs);
}

void HostWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    ui.retranslateUi(this);
    ShowCurrent();
}

void HostWindow::OpenOutputDialog()
{
    OutputDialog(m_chooser, this).exec();
}

void HostWindow::ShowCurrent()
{
    ShowIcon();
    ui.lblName->setText(ChoiceText(m_chooser.Current()));
    ui.lblDescription->setText(FormatText(m_chooser.Current().GetDescription()));
    ShowSettings();
}

void HostWindow::ShowIcon()
{
    const auto images = m_chooser.Current().GetArtworkGroup();
    ui.lblIcon->setPixmap(images ? images->Icon().pixmap(formatIconSize, devicePixelRatio())
                                 : QPixmap());
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
