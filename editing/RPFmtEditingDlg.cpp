#include "RPFmtEditingDlg.h"

#include "IOLCodecPreset.h"
#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "OLFormatText.h"
#include "RPFmtPresetNaming.h"
#include "RPWindowOwner.h"

#include <QAbstractItemView>
#include <QInputDialog>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTextDocument>

#include <utility>

namespace Orlimo {

namespace {

QString Text(const char *source)
{
    return OrSourceText(RPFmtEditingDlg::tr(source), source);
}

// The box is narrower than some of its entries; its list is as wide as the widest.
void WidenList(QComboBox &combo)
{
    const int scrollBar = combo.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &combo);
    combo.view()->setMinimumWidth(combo.view()->sizeHintForColumn(0) + scrollBar);
}

// Left as it is, a text that looks like HTML would be rendered.
QString ToolTipShowing(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

// A chosen entry that the box cuts can be read in its tool tip.
void TellWholeText(QComboBox &combo)
{
    QObject::connect(&combo, &QComboBox::currentTextChanged, &combo,
                     [&combo](const QString &text) { combo.setToolTip(ToolTipShowing(text)); });
}

bool IsCustomNameInUse(const std::string &name)
{
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    const std::shared_ptr<const IOLFormatNode> root = dataSource->GetCustomFormatNode();
    for (int i = 0; i < root->ChildCount(); ++i) {
        if (root->ChildAt(i)->FindPreset(name))
            return true;
    }
    return false;
}

} // namespace

RPFmtEditingDlg *RPFmtEditingDlg::Instance()
{
    static RPFmtEditingDlg *const instance = new RPFmtEditingDlg;
    return instance;
}

bool RPFmtEditingDlg::EditPreset(std::shared_ptr<IOLFormatPreset> preset,
                                 std::shared_ptr<IOLFormatNode> node)
{
    RPFmtEditingDlg *dialog = Instance();
    if (dialog->editing)
        return false;
    const QScopedValueRollback running(dialog->editing, true);
    dialog->SetUp(std::move(preset), std::move(node));
    dialog->FillControls();
    dialog->ForgetFocus();
    PlaceAboveActiveWindow(*dialog);
    const bool saved = dialog->exec() == QDialog::Accepted;
    dialog->hide(); // exec() leaves it open where the host ends its event loop
    return saved;
}

RPFmtEditingDlg::RPFmtEditingDlg()
{
    ui.setupUi(this);
    setWindowTitle(Text(QT_TR_NOOP("Settings")));
    setFixedSize(540, 320);
    setAttribute(Qt::WA_QuitOnClose, false);
    // exec() would take a modality of its own back before EditPreset() hides a window that was left
    // open, and a window that is not modal then gives the others no input back.
    setModal(true);
    ui.btnSave->setDefault(true);

    using Codec = IOLCodecPreset;
    using Preset = IOLFormatPreset;
    videoGroup = { ui.cmbVEncoder,
                   &Preset::VideoCodecCount,
                   &Preset::VideoCodecAt,
                   &Preset::CurrentVideoCodecIndex,
                   &Preset::SetCurrentVideoCodecIndex,
                   &Preset::CurrentVideoCodec,
                   { { { ui.cmbResolution, &Codec::ResolutionCount, &Codec::ResolutionText,
                         &Codec::CurrentResolutionIndex, &Codec::SetResolutionIndex },
                       { ui.cmbFrameRate, &Codec::FrameRateCount, &Codec::FrameRateText,
                         &Codec::CurrentFrameRateIndex, &Codec::SetFrameRateIndex },
                       { ui.cmbVQuality, &Codec::QualityCount, &Codec::QualityText,
                         &Codec::CurrentQualityIndex, &Codec::SetQualityIndex } } } };
    audioGroup = { ui.cmbAEncoder,
                   &Preset::AudioCodecCount,
                   &Preset::AudioCodecAt,
                   &Preset::CurrentAudioCodecIndex,
                   &Preset::SetCurrentAudioCodecIndex,
                   &Preset::CurrentAudioCodec,
                   { { { ui.cmbSampleRate, &Codec::SampleRateCount, &Codec::SampleRateText,
                         &Codec::CurrentSampleRateIndex, &Codec::SetSampleRateIndex },
                       { ui.cmbChannel, &Codec::ChannelCount, &Codec::ChannelText,
                         &Codec::CurrentChannelIndex, &Codec::SetChannelIndex },
                       { ui.cmbAQuality, &Codec::QualityCount, &Codec::QualityText,
                         &Codec::CurrentQualityIndex, &Codec::SetQualityIndex } } } };
    ConnectGroup(videoGroup);
    ConnectGroup(audioGroup);
    ConnectButtons();
}

RPFmtEditingDlg::~RPFmtEditingDlg() = default;

void RPFmtEditingDlg::ConnectGroup(const EncoderGroup &group)
{
    TellWholeText(*group.encoders);
    connect(group.encoders, &QComboBox::currentIndexChanged, this,
            [this, &group](int index) { ChooseEncoder(group, index); });
    for (const OptionCombo &option : group.options) {
        TellWholeText(*option.combo);
        connect(option.combo, &QComboBox::currentIndexChanged, this,
                [this, &group, &option](int index) { ChooseOption(group, option, index); });
    }
}

void RPFmtEditingDlg::ConnectButtons()
{
    connect(ui.btnSaveNewPreset, &QPushButton::clicked, this, &RPFmtEditingDlg::SaveAsNewPreset);
    connect(ui.btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui.btnSave, &QPushButton::clicked, this, &RPFmtEditingDlg::Save);
    connect(ui.btnDefault, &QPushButton::clicked, this, &RPFmtEditingDlg::Reset);
}

// The form's texts follow a change of language at the next opening. The form has a title too, which
// takes the place of the one that SetUp() composed.
void RPFmtEditingDlg::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    ui.retranslateUi(this);
}

void RPFmtEditingDlg::SetUp(std::shared_ptr<IOLFormatPreset> preset,
                            std::shared_ptr<IOLFormatNode> node)
{
    targetPreset = std::move(preset);
    formatNode = std::move(node);
    workingPreset = targetPreset ? targetPreset->Clone() : nullptr;
    setWindowTitle(ComposedTitle());
}

QString RPFmtEditingDlg::ComposedTitle() const
{
    if (!targetPreset)
        return Text(QT_TR_NOOP("Settings"));
    const std::string presetName = targetPreset->Name();
    QString title = Text(QT_TR_NOOP("Settings")) + QStringLiteral(" - ");
    if (formatNode && !NamesFormat(presetName, NodeName()))
        title += TranslateFormatText(NodeName()) + u' ';
    return title + TranslateFormatText(presetName);
}

// Every opening starts at the first control, so that Enter saves also after the last opening was
// left with the Cancel button.
void RPFmtEditingDlg::ForgetFocus()
{
    if (QWidget *widget = focusWidget())
        widget->clearFocus();
}

void RPFmtEditingDlg::FillControls()
{
    const QScopedValueRollback filling(controlsReady, false);
    const bool editable = workingPreset != nullptr;
    for (QPushButton *button : { ui.btnSaveNewPreset, ui.btnSave, ui.btnDefault })
        button->setEnabled(editable);
    for (const EncoderGroup *group : { &videoGroup, &audioGroup }) {
        group->encoders->clear();
        if (editable)
            FillEncoders(*group);
        else
            Disable(*group);
    }
}

void RPFmtEditingDlg::FillEncoders(const EncoderGroup &group)
{
    const IOLFormatPreset &preset = *workingPreset;
    for (int i = 0; i < (preset.*group.count)(); ++i)
        group.encoders->addItem(TranslateFormatText((preset.*group.at)(i)->Name()), QVariant());
    WidenList(*group.encoders);

    const int current = (preset.*group.currentIndex)();
    if (current < 0) {
        Disable(group);
        return;
    }
    group.encoders->setEnabled(true);
    group.encoders->setCurrentIndex(current);
    FillOptions(group, current);
}

void RPFmtEditingDlg::FillOptions(const EncoderGroup &group, int encoder)
{
    const QScopedValueRollback filling(controlsReady, false);
    const auto codec = ((*workingPreset).*group.at)(encoder);
    const bool hasOptions = codec && !codec->IsAutoValue();
    for (const OptionCombo &option : group.options) {
        option.combo->clear();
        if (hasOptions)
            FillOption(option, *codec);
        else
            option.combo->setEnabled(false);
    }
}

void RPFmtEditingDlg::FillOption(const OptionCombo &option, const IOLCodecPreset &codec)
{
    for (int i = 0; i < (codec.*option.count)(); ++i)
        option.combo->addItem(TranslateFormatText((codec.*option.text)(i)), QVariant());
    WidenList(*option.combo);
    const int current = (codec.*option.currentIndex)();
    option.combo->setEnabled(current >= 0);
    if (current >= 0)
        option.combo->setCurrentIndex(current);
}

void RPFmtEditingDlg::Disable(const EncoderGroup &group)
{
    group.encoders->setEnabled(false);
    for (const OptionCombo &option : group.options) {
        option.combo->clear();
        option.combo->setEnabled(false);
    }
}

void RPFmtEditingDlg::ChooseEncoder(const EncoderGroup &group, int index)
{
    if (!controlsReady)
        return;
    ((*workingPreset).*group.setCurrentIndex)(index);
    FillOptions(group, index);
}

void RPFmtEditingDlg::ChooseOption(const EncoderGroup &group, const OptionCombo &option, int index)
{
    if (!controlsReady)
        return;
    if (const auto codec = ((*workingPreset).*group.current)())
        ((*codec).*option.setIndex)(index);
}

void RPFmtEditingDlg::Save()
{
    targetPreset->CopySettingsFrom(workingPreset);
    accept();
}

void RPFmtEditingDlg::Reset()
{
    workingPreset = targetPreset->Clone();
    FillControls();
}

void RPFmtEditingDlg::SaveAsNewPreset()
{
    if (!workingPreset)
        return;
    const std::string proposal = ProposeCustomName(workingPreset->Name(), NodeName(),
                                                   IsCustomNameInUse);
    const QString name = QInputDialog::getText(this, Text(QT_TR_NOOP("Save as New Preset")),
                                               Text(QT_TR_NOOP("preset name")), QLineEdit::Normal,
                                               QString::fromStdString(proposal));
    if (name.isEmpty())
        return;
    const auto preset = workingPreset->Clone();
    if (!preset)
        return;
    preset->SetName(name.toStdString());
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    dataSource->AddCustomPreset(preset, NodeForNewPreset());
    dataSource->SaveCustomPresets();
    Q_EMIT CustomNewPresetSucceed();
}

std::string RPFmtEditingDlg::NodeName() const
{
    return formatNode ? formatNode->Name() : std::string();
}

std::shared_ptr<IOLFormatNode> RPFmtEditingDlg::NodeForNewPreset() const
{
    if (formatNode)
        return formatNode;
    auto node = IOLFormatNode::MallocFormatNode(std::shared_ptr<IOLFormatNode>());
    const std::string formatName = workingPreset->FormatName();
    node->SetName(formatName.empty() ? workingPreset->Name() : formatName);
    node->SetFaceID(workingPreset->FaceID());
    return node;
}

} // namespace Orlimo
