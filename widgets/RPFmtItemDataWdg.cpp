#include "RPFmtItemDataWdg.h"

#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLLogConfig.h"
#include "OLFormatText.h"
#include "RPArtworkIcon.h"
#include "RPFmtItemGeometry.h"

#include "ui_RPFmtItemDataWdg.h"

#include <QPainter>

namespace Orlimo {

namespace {

constexpr int textFlags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;

} // namespace

// The form does not have slots connected by name, as the others do: a row has none, and to look for
// them would take a quarter of the time in which a list is filled.
//
// The font is set before there is a parent, whose style sheet would be searched for rules once more
// for it.
RPFmtItemDataWdg::RPFmtItemDataWdg(QWidget *parent)
{
    Ui::RPFmtItemDataWdgClass().setupUi(this);
    if (parent)
        setParent(parent, {});
}

QRect RPFmtItemDataWdg::GetActionGlobalRect() const
{
    const QRect box = RowActionBox(rect());
    return { mapToGlobal(box.topLeft()), box.size() };
}

QString RPFmtItemDataWdg::Title() const
{
    if (node)
        return TranslateFormatText(node->Name());
    if (preset)
        return TranslateFormatText(preset->Name());
    return recentItem ? TranslateFormatText(recentItem->GetDisplayName()) : QString();
}

QString RPFmtItemDataWdg::Description() const
{
    if (node)
        return {};
    if (preset)
        return TranslateFormatText(preset->Description());
    return recentItem ? TranslateFormatText(recentItem->GetDescription()) : QString();
}

void RPFmtItemDataWdg::enterEvent(QEnterEvent *)
{
    hovered = true;
    repaint();
}

void RPFmtItemDataWdg::leaveEvent(QEvent *)
{
    hovered = false;
    repaint();
}

void RPFmtItemDataWdg::resizeEvent(QResizeEvent *)
{
    if (actionWidget)
        actionWidget->setGeometry(RowActionBox(rect()));
}

void RPFmtItemDataWdg::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (node)
        PaintNode(painter);
    else if (preset)
        PaintPreset(painter);
    else if (recentItem)
        PaintRecent(painter);
    else
        IOLLogConfig::Printf("Error format item data to paint");
}

void RPFmtItemDataWdg::PaintNode(QPainter &painter) const
{
    PaintIcon(painter, node->FaceID());
    painter.drawText(NodeTitleBox(rect()), textFlags, Title());
}

void RPFmtItemDataWdg::PaintPreset(QPainter &painter) const
{
    PaintIcon(painter, preset->FaceID());
    int titleRight = RowIconBox(rect()).right();
    if (const QString title = Title(); !title.isEmpty()) {
        const QRect box = MeasuredTitleBox(painter, title);
        painter.drawText(box, textFlags, title);
        titleRight = box.right();
    }
    PaintDescription(painter, PresetDescriptionLeft(rect(), textWidth, titleRight));
    PaintAction(painter);
}

void RPFmtItemDataWdg::PaintRecent(QPainter &painter) const
{
    PaintIcon(painter, recentItem->GetFaceID());
    const QString title = Title();
    const QRect box = MeasuredTitleBox(painter, title);
    if (box.isValid())
        painter.drawText(box, textFlags, title);
    PaintDescription(painter, RecentDescriptionLeft(rect()));
    PaintAction(painter);
}

void RPFmtItemDataWdg::PaintIcon(QPainter &painter, int faceID) const
{
    const QIcon icon = ArtworkIcon(faceID);
    if (!icon.isNull())
        icon.paint(&painter, RowIconBox(rect()), Qt::AlignCenter, QIcon::Normal, QIcon::Off);
}

void RPFmtItemDataWdg::PaintDescription(QPainter &painter, int left) const
{
    const QRect box = DescriptionBox(rect(), left);
    if (HoldsDescription(box))
        painter.drawText(box, textFlags, Description());
}

void RPFmtItemDataWdg::PaintAction(QPainter &painter) const
{
    if (hovered && !actionIcon.isNull()) {
        actionIcon.paint(&painter, RowActionBox(rect()), Qt::AlignCenter, QIcon::Normal,
                         QIcon::Off);
    }
}

QRect RPFmtItemDataWdg::MeasuredTitleBox(QPainter &painter, const QString &title) const
{
    return PresetTitleBox(rect(), painter.boundingRect(rect(), Qt::TextSingleLine, title).size());
}

} // namespace Orlimo
