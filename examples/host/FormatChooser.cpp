#include "FormatChooser.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLMediaFormatPopup.h"

#include <QPoint>
#include <QWidget>

#include <cstdio>
#include <utility>

namespace Host {

using namespace Orlimo;

namespace {

PopupRect ScreenRect(const QWidget &control)
{
    const QPoint corner = control.mapToGlobal(QPoint());
    return { static_cast<float>(corner.x()), static_cast<float>(corner.y()),
             static_cast<float>(control.width()), static_cast<float>(control.height()) };
}

void PrintChoice(const IOLFormatPreset *preset, const IOLFormatNode *node)
{
    if (preset && node)
        std::printf("choice: %s / %s\n", node->Name().c_str(), preset->Name().c_str());
    else
        std::puts("choice: none");
    std::fflush(stdout);
}

} // namespace

FormatChooser::FormatChooser()
    : m_current(IOLFmtPresetDataSource::Shared()->GetLatestRecentItem())
{
}

void FormatChooser::PickBeside(const QWidget &control)
{
    m_hasPicked = true;
    IOLMediaFormatPopup::Shared()->ShowFormatPopup(ScreenRect(control),
                                                   [this](const ConstPreset &preset,
                                                          const ConstNode &node) {
                                                       OnPicked(preset, node);
                                                   });
}

void FormatChooser::PickAt(QPoint screenPosition)
{
    m_hasPicked = true;
    IOLMediaFormatPopup::Shared()->ShowFormatPopupAt({ static_cast<float>(screenPosition.x()),
                                                       static_cast<float>(screenPosition.y()) },
                                                     [this](const ConstPreset &preset,
                                                            const ConstNode &node) {
                                                         OnPicked(preset, node);
                                                     });
}

void FormatChooser::EditCopy()
{
    const auto preset = m_current->GetFormatPreset()->Clone();
    const auto node = m_current->GetFormatNode()->Clone(IOLFormatNode::CloneAll);
    if (!IOLMediaFormatPopup::Shared()->EditFormatPreset(preset, node))
        return;
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    if (dataSource->AddRecentPreset(preset, node))
        dataSource->SaveRecentPresets();
    SetCurrent(preset, node);
}

// The picker reports its own objects, which later edits in the picker change.
void FormatChooser::OnPicked(const ConstPreset &preset, const ConstNode &node)
{
    PrintChoice(preset.get(), node.get());
    if (preset && node)
        SetCurrent(preset->Clone(), node->Clone(IOLFormatNode::CloneAll));
}

void FormatChooser::SetCurrent(ConstPreset preset, ConstNode node)
{
    m_current = IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(std::move(preset),
                                                                  std::move(node));
    Q_EMIT CurrentChanged();
}

} // namespace Host
