#pragma once

#include "EditingDriver.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "SampleFormat.h"

#include <QInputDialog>
#include <QLineEdit>

namespace Test {

inline std::shared_ptr<Orlimo::IOLFormatNode> NodeCalled(const std::string &name)
{
    using Orlimo::IOLFormatNode;
    auto node = IOLFormatNode::MallocFormatNode(std::shared_ptr<IOLFormatNode>());
    node->SetName(name);
    return node;
}

inline std::shared_ptr<Orlimo::IOLFormatPreset> PresetCalled(const std::string &name)
{
    auto preset = MakeSamplePreset("HD");
    preset->SetName(name);
    return preset;
}

// The custom presets that the process has.

inline std::shared_ptr<Orlimo::IOLFormatNode> CustomNode()
{
    return Orlimo::IOLFmtPresetDataSource::Shared()->GetCustomFormatNode();
}

inline void AddCustom(const std::string &preset, const std::string &node)
{
    const auto dataSource = Orlimo::IOLFmtPresetDataSource::Shared();
    dataSource->AddCustomPreset(PresetCalled(preset), NodeCalled(node));
}

inline void RemoveCustomPresets()
{
    while (CustomNode()->ChildCount() > 0)
        CustomNode()->RemoveChildAt(0);
}

// The presets of a tree of custom presets, as "format/preset".
inline QStringList CustomNames(const Orlimo::IOLFormatNode &root)
{
    QStringList names;
    for (int i = 0; i < root.ChildCount(); ++i) {
        const auto node = root.ChildAt(i);
        for (int j = 0; j < node->PresetCount(); ++j)
            names += QString::fromStdString(node->Name() + '/' + node->PresetAt(j)->Name());
    }
    return names;
}

// What the user does in the editing dialog and its prompt for the name of a new preset.

inline void CancelEdit(const EditingDriver &user)
{
    user.Press(Qt::Key_Escape);
}

inline void AcceptPrompt(QInputDialog &prompt)
{
    QTest::keyClick(&prompt, Qt::Key_Return);
}

inline void RejectPrompt(QInputDialog &prompt)
{
    QTest::keyClick(&prompt, Qt::Key_Escape);
}

// Types the name, as an input method does, in the place of the proposal.
inline void TypeName(QInputDialog &prompt, const QString &name)
{
    auto *edit = prompt.findChild<QLineEdit *>();
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_Delete);
    if (!name.isEmpty())
        QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, name, Qt::NoModifier);
}

// Presses Save as New Preset and runs answer(prompt). Without a window manager nobody gives the
// dialog the input back afterwards.
template<class Answer>
void SaveAsNew(const EditingDriver &user, Answer answer)
{
    const WhenOpen<QInputDialog> prompt(answer);
    user.Click(QStringLiteral("btnSaveNewPreset"));
    user.Dialog().activateWindow();
}

inline void SaveAs(const EditingDriver &user, const QString &name)
{
    SaveAsNew(user, [&name](QInputDialog &prompt) {
        TypeName(prompt, name);
        AcceptPrompt(prompt);
    });
}

} // namespace Test
