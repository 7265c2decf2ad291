#include "BarePicker.h"
#include "Measures.h"
#include "Samples.h"

#include "ArtworkFileBytes.h"

#include "IOLArtworkImageGroup.h"
#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "RPFmtItemDataWdg.h"
#include "RPFmtItemGeometry.h"
#include "RPFmtNodeWdg.h"

#include <QCoreApplication>
#include <QPainter>

#include <memory>
#include <string>

using namespace Orlimo;
using namespace Qt::StringLiterals;

namespace Bench {

namespace {

using NodePointer = std::shared_ptr<IOLFormatNode>;

constexpr int faceID = 1001;

std::shared_ptr<IOLFormatPreset> SamplePreset()
{
    const auto preset = IOLFormatPreset::MallocFormatPreset("MP4", "H.264, 1920 x 1080");
    preset->SetFaceID(faceID);
    return preset;
}

NodePointer EmptyNode()
{
    return IOLFormatNode::MallocFormatNode(NodePointer());
}

// A category of one format with so many presets.
NodePointer Category(int presets)
{
    const NodePointer format = EmptyNode();
    format->SetName("MP4");
    for (int i = 1; i <= presets; ++i) {
        const auto preset = SamplePreset();
        preset->SetName("MP4 #" + std::to_string(i));
        format->AddPreset(preset);
    }
    const NodePointer category = EmptyNode();
    category->AppendChild(format);
    return category;
}

Cost CostOfFilling(const NodePointer &category)
{
    RPFmtNodeWdg page(nullptr);
    return CostOf([&] { page.SetFormatNode(category, false); });
}

Cost CostOfBareFilling(PageRows rows)
{
    BareNodePage page(nullptr);
    return CostOf([&] { page.Show(rows); });
}

Comparison MeasureFilling(int rows)
{
    NeedApplication();
    const NodePointer category = Category(rows);
    return Compare([&] { return CostOfFilling(category); },
                   [&] { return CostOfBareFilling(RowsOf(*category)); });
}

// How many times as long it takes to fill a list as to fill a shorter one.
Comparison MeasureFillingGrowth(int rows, int fewerRows)
{
    NeedApplication();
    const NodePointer category = Category(rows);
    const NodePointer smaller = Category(fewerRows);
    return Compare([&] { return CostOfFilling(category); }, [&] { return CostOfFilling(smaller); });
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

Cost Repaint(QWidget &widget)
{
    constexpr int times = 200;
    return CostOf([&] {
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
    AddMeasure("fill a list, against that of 500", "5000 rows", mostGrowth,
               [] { return MeasureFillingGrowth(5'000, 500); });
    AddMeasure("repaint a hovered row, against a bare painter", "200 times", 1.5,
               MeasureHoveredRow);
}

} // namespace Bench
