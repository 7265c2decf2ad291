#include "DialogWalk.h"

#include "Activity.h"
#include "ModalDriver.h"

#include "IOLCodecPreset.h"
#include "IOLFormatPreset.h"

#include <QComboBox>
#include <QInputDialog>
#include <QPushButton>

#include <array>

using namespace Orlimo;

namespace Test {

namespace {

using namespace Qt::StringLiterals;

constexpr std::array combos { "cmbVEncoder", "cmbResolution", "cmbFrameRate", "cmbVQuality",
                              "cmbAEncoder", "cmbSampleRate", "cmbChannel",   "cmbAQuality" };

QComboBox *Combo(const QDialog &dialog, const char *name)
{
    return dialog.findChild<QComboBox *>(QString::fromLatin1(name));
}

} // namespace

DialogWalk::DialogWalk(PopupScene &scene, Random &random, std::shared_ptr<IOLFormatPreset> preset,
                       PlainNode node)
    : m_scene(scene)
    , m_random(random)
    , m_preset(std::move(preset))
    , m_node(std::move(node))
    , m_before(Chosen(*m_preset))
    , m_expected(m_before)
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { WorkIfOpen(); });
    m_timer.start(1);
}

void DialogWalk::CheckUntouched() const
{
    m_scene.Verify(Chosen(*m_preset) == m_before, u"the preset was touched"_s);
}

void DialogWalk::CheckEdited(const IOLFormatPreset &preset) const
{
    m_scene.Verify(Chosen(preset) == m_expected, u"the edited preset has other options"_s);
}

void DialogWalk::WorkIfOpen()
{
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog || !Test::IsActive(*dialog))
        return;
    m_timer.stop();
    m_hasOpened = true;
    Work(*dialog);
}

void DialogWalk::Work(QDialog &dialog)
{
    m_scene.LetCallbacksReopen(false);
    m_scene.Verify(Shown(dialog) == m_before, u"the dialog shows other options"_s);
    for (int steps = m_random.Below(6); steps > 0; --steps) {
        Step(dialog);
        dialog.activateWindow();
        m_scene.Verify(QTest::qWaitFor([&] { return Test::IsActive(dialog); }),
                       u"the dialog is not active"_s);
    }
    m_scene.LetCallbacksReopen(true);
    Close(dialog);
    if (!dialog.isVisible())
        return;
    m_scene.Verify(false, u"the dialog has stayed open"_s);
    dialog.reject();
}

void DialogWalk::Step(QDialog &dialog)
{
    switch (m_random.Below(8)) {
    case 0:
        m_steps += u"reset"_s;
        Press(dialog, "btnDefault");
        m_scene.Verify(Shown(dialog) == m_before, u"the reset dialog shows other options"_s);
        break;
    case 1:
    case 2:
        SaveAsNew(dialog);
        break;
    case 3:
        m_steps += u"load"_s;
        m_scene.Load(m_random.OneIn(4));
        QCoreApplication::processEvents();
        break;
    case 4:
        OpenPopup(dialog);
        break;
    default:
        ChooseOptions(dialog);
    }
}

void DialogWalk::ChooseOptions(QDialog &dialog)
{
    const char *name = m_random.Pick(combos);
    QComboBox *combo = Combo(dialog, name);
    if (!combo->isEnabled())
        return;
    combo->setFocus(Qt::TabFocusReason);
    const Qt::Key key = m_random.OneIn(3) ? Qt::Key_Up : Qt::Key_Down;
    m_steps += QString::fromLatin1(name) + (key == Qt::Key_Up ? u" up"_s : u" down"_s);
    for (int presses = 1 + m_random.Below(3); presses > 0; --presses)
        QTest::keyClick(combo, key);
}

// Without a window manager nobody gives the dialog the input back afterwards.
void DialogWalk::SaveAsNew(QDialog &dialog)
{
    const int answer = m_random.Below(4); // the proposal, a name, no name, or none of it
    const QString typed = answer == 1 ? QString::fromStdString("n" + RandomText(m_random, 2))
                                      : QString();
    QString name;
    const WhenOpen<QInputDialog> prompt([&](QInputDialog &input) {
        if (answer == 1 || answer == 2)
            input.findChild<QLineEdit *>()->setText(typed);
        if (answer != 3)
            name = input.textValue();
        QTest::keyClick(&input, answer == 3 ? Qt::Key_Escape : Qt::Key_Return);
    });
    PlainPreset preset = ToPlain(*m_preset);
    preset.videoCodec = Combo(dialog, "cmbVEncoder")->currentIndex();
    Press(dialog, "btnSaveNewPreset");
    preset.name = name.toStdString();
    m_steps += u"save as new '%1'"_s.arg(name);
    if (!name.isEmpty())
        m_scene.Do(PresetsOperation::AddCustom, m_node, preset);
}

// The dialog takes the focus back, which closes the popup.
void DialogWalk::OpenPopup(QDialog &dialog)
{
    m_steps += u"host opens the popup"_s;
    ++m_openings;
    m_scene.Open();
    QWidget *popup = PopupDriver::FindPopup();
    m_scene.Verify(QTest::qWaitFor([popup] { return Test::IsActive(*popup); }),
                   u"the popup over the dialog is not active"_s);
    dialog.activateWindow();
    m_scene.Verify(QTest::qWaitFor([popup] { return !popup->isVisible(); }),
                   u"the popup over the dialog stays open"_s);
}

void DialogWalk::Close(QDialog &dialog)
{
    const int way = m_random.Below(5);
    m_hasSaved = way < 2;
    m_steps += m_hasSaved ? u"save"_s : u"cancel"_s;
    if (m_hasSaved)
        m_expected = Shown(dialog);
    if (m_hasSaved)
        Press(dialog, "btnSave");
    else if (way == 2)
        Press(dialog, "btnCancel");
    else if (way == 3)
        QTest::keyClick(&dialog, Qt::Key_Escape);
    else
        dialog.close();
}

void DialogWalk::Press(QDialog &dialog, const char *button)
{
    QTest::mouseClick(dialog.findChild<QPushButton *>(QString::fromLatin1(button)), Qt::LeftButton);
}

// The indices in the combo boxes; those of an encoder without options are left out.
QList<int> DialogWalk::Shown(const QDialog &dialog)
{
    QList<int> indices;
    for (const char *name : combos) {
        if (Combo(dialog, name)->isEnabled())
            indices += Combo(dialog, name)->currentIndex();
    }
    return indices;
}

// The same of the preset.
QList<int> DialogWalk::Chosen(const IOLFormatPreset &preset)
{
    QList<int> indices;
    const auto add = [&](int index) {
        if (index >= 0)
            indices += index;
    };
    add(preset.CurrentVideoCodecIndex());
    if (const auto codec = preset.CurrentVideoCodec(); codec && !codec->IsAutoValue()) {
        add(codec->CurrentResolutionIndex());
        add(codec->CurrentFrameRateIndex());
        add(codec->CurrentQualityIndex());
    }
    add(preset.CurrentAudioCodecIndex());
    if (const auto codec = preset.CurrentAudioCodec(); codec && !codec->IsAutoValue()) {
        add(codec->CurrentSampleRateIndex());
        add(codec->CurrentChannelIndex());
        add(codec->CurrentQualityIndex());
    }
    return indices;
}

} // namespace Test
