#include "RPFmtNodeWdg.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "RPFmtItemDataWdg.h"
#include "RPFmtRows.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;

constexpr int textMargin = 53;
constexpr int columnGap = 30;

RPFmtItemDataWdg *RowOf(const QListWidget *list, QListWidgetItem *item)
{
    return qobject_cast<RPFmtItemDataWdg *>(list->itemWidget(item));
}

} // namespace

RPFmtNodeWdg::RPFmtNodeWdg(QWidget *parent)
    : QWidget(parent)
{
    ui.setupUi(this);
    SetUpRowList(*ui.ListNode);
    SetUpRowList(*ui.ListFormat);
    connect(ui.ListNode, &QListWidget::itemSelectionChanged, this,
            &RPFmtNodeWdg::SelectedNodeChanged);
    connect(ui.ListFormat, &QListWidget::itemClicked, this, &RPFmtNodeWdg::ListFormatClicked);
}

RPFmtNodeWdg::~RPFmtNodeWdg() = default;

void RPFmtNodeWdg::SetFormatNode(std::shared_ptr<IOLFormatNode> newNode, bool newCustom)
{
    searchNode = nullptr;
    node = std::move(newNode);
    custom = newCustom;
    if (!node)
        SelectSubNode(nullptr);
    ShowFirstSubNode();
}

void RPFmtNodeWdg::SearchFormat(const QString &text)
{
    searchNode = IOLFmtPresetDataSource::Shared()->SearchFormatNode(node, text.toStdString(),
                                                                    nullptr);
    ShowFirstSubNode();
}

void RPFmtNodeWdg::ResetSearch()
{
    if (!searchNode)
        return;
    searchNode = nullptr;
    ShowFirstSubNode();
}

std::shared_ptr<IOLFormatNode> RPFmtNodeWdg::ShownNode() const
{
    return searchNode ? searchNode : node;
}

void RPFmtNodeWdg::ShowFirstSubNode()
{
    if (const auto shown = ShownNode())
        SelectSubNode(shown->FirstChild());
    ui.ListNode->clear();
    ui.ListFormat->clear();
    formatsFilled = false;
    FillNodeList(ShownNode());
    if (!formatsFilled)
        FillFormatList();
}

// Without a child the last chosen preset stays.
void RPFmtNodeWdg::SelectSubNode(std::shared_ptr<IOLFormatNode> child)
{
    currentSubNode = std::move(child);
    if (currentSubNode)
        currentPreset = currentSubNode->FirstFormatPreset();
}

// The selection of the first row fills the list of presets.
void RPFmtNodeWdg::FillNodeList(const std::shared_ptr<IOLFormatNode> &shown)
{
    if (!shown)
        return;
    const auto setUpRow = [&](RPFmtItemDataWdg &row, int index) {
        row.node = shown->ChildAt(index);
    };
    FillRows(
            *ui.ListNode, [&] { return shown->ChildCount(); }, setUpRow);
    if (currentSubNode)
        ui.ListNode->setCurrentRow(0);
}

void RPFmtNodeWdg::FillFormatList()
{
    formatsFilled = true;
    ui.ListFormat->clear();
    if (!currentSubNode)
        return;
    const int textWidth = FormatTextWidth();
    const QIcon icon = ActionIcon(custom ? u":/OLMediaFormatPopup/trash.png"_s
                                         : u":/OLMediaFormatPopup/setting.png"_s);
    const auto setUpRow = [&](RPFmtItemDataWdg &row, int index) {
        row.preset = currentSubNode->PresetAt(index);
        row.actionIcon = icon;
        row.textWidth = textWidth;
    };
    FillRows(
            *ui.ListFormat, [&] { return currentSubNode->PresetCount(); }, setUpRow);
    if (currentPreset)
        ui.ListFormat->setCurrentRow(0);
}

int RPFmtNodeWdg::FormatTextWidth() const
{
    const QFontMetrics metrics { QFont() };
    int widest = 0;
    for (int i = 0; i < currentSubNode->PresetCount(); ++i) {
        const QString name = QString::fromStdString(currentSubNode->PresetAt(i)->Name());
        widest = std::max(widest, metrics.size(0, name).width() + textMargin);
    }
    return widest + columnGap;
}

void RPFmtNodeWdg::SelectedNodeChanged()
{
    const QList<QListWidgetItem *> selected = ui.ListNode->selectedItems();
    const auto *row = selected.isEmpty() ? nullptr : RowOf(ui.ListNode, selected.first());
    if (!row)
        return;
    SelectSubNode(std::const_pointer_cast<IOLFormatNode>(row->node));
    FillFormatList();
    ui.ListFormat->setCurrentRow(0);
}

// Every branch leads out of here and may rebuild the lists, so the row is not looked at afterwards.
void RPFmtNodeWdg::ListFormatClicked(QListWidgetItem *item)
{
    const auto *row = RowOf(ui.ListFormat, item);
    if (!row)
        return;
    const auto preset = std::const_pointer_cast<IOLFormatPreset>(row->preset);
    const auto subNode = currentSubNode;
    if (!row->GetActionGlobalRect().contains(QCursor::pos())) {
        currentPreset = preset;
        if (formatSelected)
            formatSelected(preset, subNode);
    } else if (custom) {
        DeleteClicked(item, preset);
    } else if (formatEditRequested) {
        formatEditRequested(preset, subNode);
    }
}

void RPFmtNodeWdg::DeleteClicked(QListWidgetItem *item,
                                 const std::shared_ptr<IOLFormatPreset> &preset)
{
    bool emptied = false;
    DeleteCustomPreset(preset, currentSubNode, &emptied);
    if (emptied)
        RemoveCurrentSubNodeRow();
    else
        Forget(ui.ListFormat->takeItem(ui.ListFormat->row(item)));
}

// Others may still be told that the item was clicked.
void RPFmtNodeWdg::Forget(QListWidgetItem *taken)
{
    const std::shared_ptr<QListWidgetItem> item(taken);
    QMetaObject::invokeMethod(
            this, [item] {}, Qt::QueuedConnection);
}

void RPFmtNodeWdg::RemoveCurrentSubNodeRow()
{
    int row = ui.ListNode->currentRow();
    delete ui.ListNode->takeItem(row);
    const auto shown = ShownNode();
    row = std::min(row, shown->ChildCount() - 1);
    SelectSubNode(shown->ChildAt(row));
    if (row >= 0)
        ui.ListNode->setCurrentRow(row);
    FillFormatList();
}

// Keeps a search that is shown in step with the data without searching again.
void RPFmtNodeWdg::DeleteCustomPreset(const std::shared_ptr<IOLFormatPreset> &preset,
                                      const std::shared_ptr<IOLFormatNode> &subNode, bool *emptied)
{
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    dataSource->RemoveCustomPreset(preset, subNode);
    dataSource->SaveCustomPresets();
    if (const auto found = searchNode ? searchNode->FindChild(subNode->Name()) : nullptr) {
        found->RemovePreset(preset->Name());
        if (found->PresetCount() == 0)
            searchNode->RemoveChild(found);
    }
    if (emptied)
        *emptied = currentSubNode->PresetCount() == 0;
}

void RPFmtNodeWdg::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(QColor(210, 210, 210, 255));
    const int x = ui.ListNode->geometry().right() + 2;
    painter.drawLine(x, rect().top(), x, rect().bottom());
}

} // namespace Orlimo
