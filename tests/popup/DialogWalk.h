#pragma once

#include "PopupScene.h"

#include <QDialog>
#include <QTimer>

namespace Test {

// What a user does at random in the editing dialog: made before the call that opens the dialog, it
// works there as soon as the dialog is active, and closes it.
class DialogWalk
{
public:
    // The dialog edits preset, which belongs to the format node.
    DialogWalk(PopupScene &scene, Random &random, std::shared_ptr<Orlimo::IOLFormatPreset> preset,
               PlainNode node);

    bool HasOpened() const { return m_hasOpened; }
    bool HasSaved() const { return m_hasSaved; }
    int Openings() const { return m_openings; } // of the popup, while the dialog was open
    const QStringList &Steps() const { return m_steps; }

    // Checks that the preset has changed exactly where that was saved, that it has not changed at
    // all, or that another preset has what was chosen.
    void CheckPreset() const { CheckEdited(*m_preset); }
    void CheckUntouched() const;
    void CheckEdited(const Orlimo::IOLFormatPreset &preset) const;

private:
    void WorkIfOpen();
    void Work(QDialog &dialog);
    void Step(QDialog &dialog);
    void ChooseOptions(QDialog &dialog);
    void SaveAsNew(QDialog &dialog);
    void OpenPopup(QDialog &dialog);
    void Close(QDialog &dialog);
    static void Press(QDialog &dialog, const char *button);
    static QList<int> Shown(const QDialog &dialog);
    static QList<int> Chosen(const Orlimo::IOLFormatPreset &preset);

    PopupScene &m_scene;
    Random &m_random;
    std::shared_ptr<Orlimo::IOLFormatPreset> m_preset;
    PlainNode m_node;
    QList<int> m_before;
    QList<int> m_expected; // what is chosen in the end
    QTimer m_timer;
    QStringList m_steps;
    int m_openings = 0;
    bool m_hasOpened = false;
    bool m_hasSaved = false;
};

} // namespace Test
