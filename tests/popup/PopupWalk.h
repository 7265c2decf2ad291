#pragma once

#include "PopupScene.h"

#include <optional>

namespace Test {

class DialogWalk;

// What a user and a host do at random with the popup, step by step, each with what comes of it.
class PopupWalk
{
public:
    explicit PopupWalk(unsigned seed);

    void Step();
    const QString &Fault() const { return m_scene.Fault(); }
    const QStringList &Steps() const { return m_steps; }

private:
    struct StepKind
    {
        const char *name;
        int weight;
        void (PopupWalk::*run)();
        bool needsPopup;
    };
    static const std::array<StepKind, 18> stepKinds;

    void Open();
    void ActivateHost();
    void Load();
    void LoadLate();
    void EditOwnPreset();
    void RequestClose();

    void ChoosePreset();
    void ChooseRecent();
    void ClickPresetAction();
    void DeleteRecent();
    void DeleteCustom(int row);
    void EditPreset(int row);
    void CheckEdit(const DialogWalk &dialog, const std::string &preset,
                   const PopupScene::Report &report, bool searching);

    void SelectFormat();
    void SwitchTab();
    void ScrollTabs();
    void ScrollList();
    void TypeSearch();
    void EraseSearch();
    void PressKey();
    void PressTab();

    void Note(const QString &what) { m_steps.last() += u' ' + what; }
    std::optional<int> VisibleRow(const char *list);
    PlainNode CurrentFormat() const;
    std::shared_ptr<Orlimo::IOLFormatPreset> PresetInTree(const std::string &name) const;
    void ExpectReport(const std::string &preset, const std::string &node);

    Random m_random;
    PopupScene m_scene;
    QStringList m_steps;
};

} // namespace Test
