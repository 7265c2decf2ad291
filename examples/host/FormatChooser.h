#pragma once

#include <QObject>

#include <memory>

class QPoint;
class QWidget;

namespace Orlimo {
class IOLFmtPresetRecentItem;
class IOLFormatNode;
class IOLFormatPreset;
} // namespace Orlimo

namespace Host {

// The host's current output format and the ways in which the user changes it. Every choice that the
// picker reports is printed on standard output as one line.
//
// It must outlive the event loop, since the picker keeps the callback of the last request.
class FormatChooser final : public QObject
{
    Q_OBJECT

public:
    // Starts with the choice that was made last, perhaps in an earlier run.
    FormatChooser();

    // Never empty.
    const Orlimo::IOLFmtPresetRecentItem &Current() const { return *m_current; }

    // Whether the picker has ever been opened.
    bool HasPicked() const { return m_hasPicked; }

    void PickBeside(const QWidget &control);
    void PickAt(QPoint screenPosition);

    // Has the user edit a copy of the current format, which takes its place when it is saved.
    void EditCopy();

Q_SIGNALS:
    void CurrentChanged();

private:
    using ConstPreset = std::shared_ptr<const Orlimo::IOLFormatPreset>;
    using ConstNode = std::shared_ptr<const Orlimo::IOLFormatNode>;

    void OnPicked(const ConstPreset &preset, const ConstNode &node);
    void SetCurrent(ConstPreset preset, ConstNode node);

    std::shared_ptr<Orlimo::IOLFmtPresetRecentItem> m_current;
    bool m_hasPicked = false;
};

} // namespace Host
