#include "BarePicker.h"
#include "Measures.h"
#include "Samples.h"

#include "ArtworkFileBytes.h"

#include "IOLArtworkImageGroup.h"
#include "IOLFmtPresetDataSource.h"
#include "IOLFormatPreset.h"
#include "RPFmtItemDataWdg.h"
#include "RPFmtItemGeometry.h"
#include "RPFmtNodeWdg.h"
#include "RPFmtRows.h"

#include <QCoreApplication>
#include <QListWidget>
#include <QPainter>

using namespace Orlimo;
using namespace Qt::StringLiterals;

namespace Bench {

namespace {

constexpr int faceID = 1001;

std::shared_ptr<IOLFormatPreset> SamplePreset()
{
    const auto preset = IOLFormatPreset::MallocFormatPreset("MP4", "H.264, 1920 x 1080");
    preset->SetFaceID(faceID);
    return preset;
}

Comparison MeasureFilling(int rows)
{
    NeedApplication();
    const QString styleSheet = RPFmtNodeWdg(nullptr).FormatList()->styleSheet();
    const auto preset = SamplePreset();
    return Compare(
            [&] {
                QListWidget list;
                list.setStyleSheet(styleSheet);
                return Elapsed([&] {
                    FillRows(list, rows, [&](RPFmtItemDataWdg &row, int) { row.preset = preset; });
                });
            },
            [&] {
                QListWidget list;
                list.setStyleSheet(styleSheet);
                return Elapsed([&] { FillWithBareRows(list, rows); });
            });
}

// The icon and the texts of a row, painted without asking for anything.
class BareRow final : public QWidget
{
public:
    explicit BareRow(QIcon icon)
        : m_icon(std::move(icon))
    {
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        m_icon.paint(&painter, RowIconBox(rect()));
        painter.drawText(NodeTitleBox(rect()), Qt::AlignVCenter | Qt::TextSingleLine, u"MP4"_s);
        painter.drawText(DescriptionBox(rect(), 200), Qt::AlignVCenter | Qt::TextSingleLine,
                         u"H.264, 1920 x 1080"_s);
    }

private:
    QIcon m_icon;
};

void LoadArtwork()
{
    const QString description = Folder().filePath(u"icons.json"_s);
    WriteFile(description, "{}");
    WriteFile(Folder().filePath(u"icons.icfg"_s),
              Test::ArtworkFile({ Test::PlainImage(faceID, 33, Qt::blue),
                                  Test::PlainImage(faceID, 66, Qt::blue) }));
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    dataSource->AsyncLoadExternalDataSource(description.toStdString(), [] {});
    dataSource->WaitForLoadingComplete();
}

Nanoseconds Repaint(QWidget &widget)
{
    constexpr int times = 200;
    return Elapsed([&] {
        for (int i = 0; i < times; ++i)
            widget.repaint();
    });
}

Comparison MeasureHoveredRow()
{
    NeedApplication();
    LoadArtwork();
    RPFmtItemDataWdg ours(nullptr);
    ours.preset = SamplePreset();
    ours.hovered = true;
    const QIcon icon = IOLFmtPresetDataSource::Shared()->GetArtworkGroup(faceID)->Icon();
    ours.actionIcon = icon;
    BareRow other(icon);
    other.setFont(ours.font());
    for (QWidget *widget : { static_cast<QWidget *>(&ours), static_cast<QWidget *>(&other) }) {
        widget->resize(400, OLRowHeight);
        widget->show();
    }
    QCoreApplication::processEvents();
    return Compare([&] { return Repaint(ours); }, [&] { return Repaint(other); });
}

} // namespace

void AddWidgetMeasures()
{
    for (const int rows : { 50, 500, 5'000 }) {
        AddMeasure("fill a list, against bare widgets", std::to_string(rows) + " rows", 2,
                   [=] { return MeasureFilling(rows); });
    }
    AddMeasure("repaint a hovered row, against a bare painter", "200 times", 1.5,
               MeasureHoveredRow);
}

} // namespace Bench
