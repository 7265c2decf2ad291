#pragma once

#include "ui_RPFmtEditingDlg.h"

#include <QDialog>

#include <array>
#include <memory>
#include <string>

namespace Orlimo {

class IOLCodecPreset;
class IOLFormatNode;
class IOLFormatPreset;

// The modal dialog in which a preset's encoders and their options are changed. It edits a copy of
// the preset, which Save writes back and which can be kept as a new custom preset.
class RPFmtEditingDlg final : public QDialog
{
    Q_OBJECT

public:
    // The process's dialog, made on the first call and never destroyed.
    static RPFmtEditingDlg *Instance();

    // Edits preset, which belongs to the format node; returns whether the user pressed Save.
    // Without a preset everything but Cancel is disabled; without a node a new custom preset is
    // filed under the name of the preset's format, or the preset's own. Returns false at once while
    // the dialog is open already, and gives the edit up where the host ends its event loop.
    static bool EditPreset(std::shared_ptr<IOLFormatPreset> preset,
                           std::shared_ptr<IOLFormatNode> node);

    ~RPFmtEditingDlg() override;

Q_SIGNALS:
    void CustomNewPresetSucceed();

protected:
    void showEvent(QShowEvent *event) override;

private:
    // A combo box that shows one list of options of the current encoder.
    struct OptionCombo
    {
        QComboBox *combo;
        int (IOLCodecPreset::*count)() const;
        std::string (IOLCodecPreset::*text)(int) const;
        int (IOLCodecPreset::*currentIndex)() const;
        void (IOLCodecPreset::*setIndex)(int);
    };

    // The combo boxes of the video or the audio encoders of a preset.
    struct EncoderGroup
    {
        QComboBox *encoders;
        int (IOLFormatPreset::*count)() const;
        std::shared_ptr<IOLCodecPreset> (IOLFormatPreset::*at)(int) const;
        int (IOLFormatPreset::*currentIndex)() const;
        void (IOLFormatPreset::*setCurrentIndex)(int);
        std::shared_ptr<IOLCodecPreset> (IOLFormatPreset::*current)() const;
        std::array<OptionCombo, 3> options;
    };

    RPFmtEditingDlg();

    void ConnectGroup(const EncoderGroup &group);
    void ConnectButtons();

    void SetUp(std::shared_ptr<IOLFormatPreset> preset, std::shared_ptr<IOLFormatNode> node);
    QString ComposedTitle() const;
    void ForgetFocus();

    void FillControls();
    void FillEncoders(const EncoderGroup &group);
    void FillOptions(const EncoderGroup &group, int encoder);
    static void FillOption(const OptionCombo &option, const IOLCodecPreset &codec);
    static void Disable(const EncoderGroup &group);

    void ChooseEncoder(const EncoderGroup &group, int index);
    void ChooseOption(const EncoderGroup &group, const OptionCombo &option, int index);

    void Save();
    void Reset();
    void SaveAsNewPreset();
    std::string NodeName() const;
    std::shared_ptr<IOLFormatNode> NodeForNewPreset() const;

    Ui::RPFmtEditingDlgClass ui;
    std::shared_ptr<IOLFormatPreset> targetPreset;
    std::shared_ptr<IOLFormatPreset> workingPreset;
    std::shared_ptr<IOLFormatNode> formatNode;
    bool controlsReady = true;
    bool editing = false;
    EncoderGroup videoGroup;
    EncoderGroup audioGroup;
};

} // namespace Orlimo
