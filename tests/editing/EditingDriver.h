#pragma once

#include "ModalDriver.h"

#include "RPFmtEditingDlg.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QWindow>

namespace Test {

inline const QStringList videoCombos { QStringLiteral("cmbVEncoder"),
                                       QStringLiteral("cmbResolution"),
                                       QStringLiteral("cmbFrameRate"),
                                       QStringLiteral("cmbVQuality") };
inline const QStringList audioCombos { QStringLiteral("cmbAEncoder"), QStringLiteral("cmbChannel"),
                                       QStringLiteral("cmbSampleRate"),
                                       QStringLiteral("cmbAQuality") };
inline const QStringList allCombos = videoCombos + audioCombos;

// What the user does in the open editing dialog, and what the user sees there.
class EditingDriver
{
public:
    explicit EditingDriver(Orlimo::RPFmtEditingDlg &dialog)
        : m_dialog(dialog)
    {
    }

    Orlimo::RPFmtEditingDlg &Dialog() const { return m_dialog; }

    template<class Widget>
    Widget &Find(const QString &name) const
    {
        auto *widget = m_dialog.findChild<Widget *>(name);
        if (!widget)
            qFatal("the dialog has no %s", qPrintable(name));
        return *widget;
    }

    QComboBox &Combo(const QString &name) const { return Find<QComboBox>(name); }
    QPushButton &Button(const QString &name) const { return Find<QPushButton>(name); }

    QStringList Texts(const QString &combo) const
    {
        QStringList texts;
        for (int i = 0; i < Combo(combo).count(); ++i)
            texts += Combo(combo).itemText(i);
        return texts;
    }

    // The current indices of the eight combo boxes, in the order of allCombos.
    QList<int> Shown() const
    {
        QList<int> indices;
        for (const QString &combo : allCombos)
            indices += Combo(combo).currentIndex();
        return indices;
    }

    QStringList EnabledCombos() const
    {
        QStringList enabled;
        for (const QString &name : allCombos) {
            if (Combo(name).isEnabled())
                enabled += name;
        }
        return enabled;
    }

    void Press(Qt::Key key) const { QTest::keyClick(m_dialog.windowHandle(), key); }

    void Click(const QString &button) const { QTest::mouseClick(&Button(button), Qt::LeftButton); }

    // Goes to the combo box and to the entry in it with the keyboard.
    void Choose(const QString &combo, int index) const
    {
        QComboBox &box = Combo(combo);
        if (!QTest::qWaitForWindowActive(&m_dialog))
            qFatal("the dialog is not active");
        box.setFocus(Qt::TabFocusReason);
        if (!box.hasFocus() || index < 0 || index >= box.count())
            qFatal("%s cannot go to %d", qPrintable(combo), index);
        while (box.currentIndex() != index)
            Press(box.currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
    }

private:
    Orlimo::RPFmtEditingDlg &m_dialog;
};

// Opens the dialog on the preset, runs steps(driver), which must close it, and returns whether the
// preset was saved.
template<class Steps>
bool Edit(const std::shared_ptr<Orlimo::IOLFormatPreset> &preset,
          const std::shared_ptr<Orlimo::IOLFormatNode> &node, Steps steps)
{
    const WhenOpen<Orlimo::RPFmtEditingDlg> opened(
            [&steps](Orlimo::RPFmtEditingDlg &dialog) { steps(EditingDriver(dialog)); });
    return Orlimo::RPFmtEditingDlg::EditPreset(preset, node);
}

// The same in the event loop of the application, outside of which it never quits by itself. Returns
// whether it took the last window for closed, upon which it would quit.
template<class Steps>
bool EditingClosesTheLastWindow(const std::shared_ptr<Orlimo::IOLFormatPreset> &preset, Steps steps)
{
    const QSignalSpy closed(qApp, &QGuiApplication::lastWindowClosed);
    const auto edit = [&] {
        Edit(preset, nullptr, steps);
        QCoreApplication::exit();
    };
    QMetaObject::invokeMethod(qApp, edit, Qt::QueuedConnection);
    QCoreApplication::exec();
    return !closed.isEmpty();
}

} // namespace Test
