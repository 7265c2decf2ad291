#include "TestCase.h"

#include "CatalogueBuilder.h"
#include "Pixels.h"
#include "RPFmtItemDataWdg.h"
#include "TreeBuilder.h"

#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <QPainter>

using namespace Orlimo;
using Test::GrabOnWhite;
using Test::InkBox;

namespace {

using namespace Qt::StringLiterals;

constexpr int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;

struct Text
{
    QString text;
    QRect box;
};

// What the row shows where it draws nothing but these texts, each in its box.
QImage Drawn(const RPFmtItemDataWdg &row, const QList<Text> &texts)
{
    QPixmap canvas(row.size());
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    painter.setFont(row.font());
    painter.setPen(row.palette().color(QPalette::WindowText));
    for (const Text &text : texts)
        painter.drawText(text.box, flags, text.text);
    painter.end();
    return canvas.toImage();
}

QImage Painted(RPFmtItemDataWdg &row)
{
    return GrabOnWhite(row).convertToFormat(QImage::Format_RGB32);
}

} // namespace

// Where rows draw their titles and descriptions. None of them has artwork.
class tst_RPFmtItemDataWdg_Texts : public Test::TestCase
{
    Q_OBJECT

private:
    static std::unique_ptr<RPFmtItemDataWdg> makeRow(int width = 553, int height = 53)
    {
        auto row = std::make_unique<RPFmtItemDataWdg>(nullptr);
        row->resize(width, height);
        return row;
    }

    static std::unique_ptr<RPFmtItemDataWdg> makePresetRow(const char *name,
                                                           const char *description)
    {
        auto row = makeRow();
        row->preset = Test::MakePreset(name, description);
        return row;
    }

    static std::unique_ptr<RPFmtItemDataWdg> makeRecentRow(const char *name,
                                                           const char *description)
    {
        auto row = makeRow();
        row->recentItem =
                IOLFmtPresetRecentItem::MallocFmtPresetRecentItem(Test::MakePreset(name),
                                                                  Test::MakeNode("", description));
        return row;
    }

    // The box of a preset's or recent choice's title: of its measured size, 10 right of the icon
    // and in its middle.
    static QRect titleBox(const RPFmtItemDataWdg &row, const QString &title)
    {
        const QRect measured = QFontMetrics(row.font())
                                       .boundingRect(row.rect(), Qt::TextSingleLine, title);
        return { QPoint(52, row.rect().center().y() - measured.height() / 2), measured.size() };
    }

private Q_SLOTS:
    void aNodeTitleStandsBesideTheIcon_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QRect>("box");
        QTest::newRow("short") << QSize(553, 53) << u"MP4"_s << QRect(52, 10, 490, 33);
        QTest::newRow("left column") << QSize(240, 53) << u"MP4"_s << QRect(52, 10, 177, 33);
        QTest::newRow("tall row") << QSize(553, 97) << u"MP4"_s << QRect(52, 32, 490, 33);
        QTest::newRow("too long") << QSize(240, 53) << QString(90, u'M') << QRect(52, 10, 177, 33);
        QTest::newRow("empty") << QSize(553, 53) << QString() << QRect(52, 10, 490, 33);
    }

    void aNodeTitleStandsBesideTheIcon()
    {
        QFETCH(const QSize, size);
        QFETCH(const QString, title);
        QFETCH(const QRect, box);
        const auto row = makeRow(size.width(), size.height());
        row->node = Test::MakeNode(title.toStdString(), "never shown");
        QCOMPARE(Painted(*row), Drawn(*row, { { title, box } }));
    }

    void aPresetTitleStandsBesideTheIcon()
    {
        const auto row = makePresetRow("HD 1080P", "");
        const QImage image = Painted(*row);
        QCOMPARE(image, Drawn(*row, { { u"HD 1080P"_s, titleBox(*row, u"HD 1080P"_s) } }));
        const QRect ink = InkBox(image, image.rect());
        QVERIFY(ink.left() >= 52);
        QVERIFY(ink.left() <= 54);
    }

    void aPresetDescriptionBeginsAtTheTextWidth_data()
    {
        QTest::addColumn<int>("textWidth");
        QTest::addColumn<QRect>("box");
        QTest::newRow("text width") << 200 << QRect(200, 18, 315, 17);
        QTest::newRow("on the title") << 1 << QRect(1, 18, 514, 17);
        QTest::newRow("automatic") << 0 << QRect(306, 18, 209, 17);
        QTest::newRow("automatic, negative") << -1 << QRect(306, 18, 209, 17);
        QTest::newRow("just wide enough") << 474 << QRect(474, 18, 41, 17);
    }

    void aPresetDescriptionBeginsAtTheTextWidth()
    {
        QFETCH(const int, textWidth);
        QFETCH(const QRect, box);
        const auto row = makePresetRow("HD", "H.264, 1080p");
        row->textWidth = textWidth;
        QCOMPARE(Painted(*row),
                 Drawn(*row, { { u"HD"_s, titleBox(*row, u"HD"_s) }, { u"H.264, 1080p"_s, box } }));
    }

    void aDescriptionWithFortyPixelsOrLessIsLeftOut_data()
    {
        QTest::addColumn<int>("textWidth");
        QTest::newRow("forty") << 475;
        QTest::newRow("none") << 515;
        QTest::newRow("right of the action") << 545;
    }

    void aDescriptionWithFortyPixelsOrLessIsLeftOut()
    {
        QFETCH(const int, textWidth);
        const auto row = makePresetRow("", "HH");
        row->textWidth = textWidth;
        QVERIFY(InkBox(Painted(*row), row->rect()).isEmpty());
    }

    void aLongPresetTitlePushesTheAutomaticDescriptionRight()
    {
        const QString title(40, u'm');
        const auto row = makePresetRow(title.toUtf8(), "HHHHHHHHHHHHHHHHHHHH");
        const QRect box = titleBox(*row, title);
        QVERIFY(box.right() + 10 > 306);
        const int left = box.right() + 10;
        row->resize(left + 200, 53);
        const QRect description(left, 18, 162, 17); // the action begins 172 further right
        QCOMPARE(Painted(*row),
                 Drawn(*row, { { title, box }, { QString(20, u'H'), description } }));
    }

    void withoutATitleTheDescriptionStandsAlone()
    {
        const auto row = makePresetRow("", "H.264");
        QCOMPARE(Painted(*row), Drawn(*row, { { u"H.264"_s, QRect(306, 18, 209, 17) } }));
    }

    void aLongDescriptionIsCutTenPixelsBeforeTheAction()
    {
        const QString description(100, u'H');
        const auto row = makePresetRow("", description.toUtf8());
        const QImage image = Painted(*row);
        QCOMPARE(image, Drawn(*row, { { description, QRect(306, 18, 209, 17) } }));
        const QRect ink = InkBox(image, image.rect());
        QVERIFY(ink.left() >= 306);
        QVERIFY(ink.left() <= 308);
        QVERIFY(ink.right() <= 514);
        QVERIFY(ink.right() >= 505);
    }

    void aRecentDescriptionBeginsLeftOfTheMiddle_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QRect>("description");
        QTest::newRow("short title") << 553 << u"MP4"_s << QRect(196, 18, 319, 17);
        QTest::newRow("no title") << 553 << QString() << QRect(196, 18, 319, 17);
        QTest::newRow("overlapping title") << 553 << QString(40, u'm') << QRect(196, 18, 319, 17);
        QTest::newRow("narrow") << 250 << u"MP4"_s << QRect(52, 18, 160, 17);
        QTest::newRow("just wide enough") << 131 << u"MP4"_s << QRect(52, 18, 41, 17);
    }

    void aRecentDescriptionBeginsLeftOfTheMiddle()
    {
        QFETCH(const int, width);
        QFETCH(const QString, title);
        QFETCH(const QRect, description);
        const auto row = makeRecentRow(title.toUtf8(), "MP4 file format");
        row->resize(width, 53);
        row->textWidth = 300;
        QCOMPARE(Painted(*row),
                 Drawn(*row,
                       { { title, titleBox(*row, title) },
                         { u"MP4 file format"_s, description } }));
    }

    void aRecentRowTooNarrowShowsItsTitleAlone()
    {
        const auto row = makeRecentRow("MP4", "HH");
        row->resize(130, 53);
        QCOMPARE(Painted(*row), Drawn(*row, { { u"MP4"_s, titleBox(*row, u"MP4"_s) } }));
    }

    void theTextsHaveTheFontAndColourOfTheRow()
    {
        const auto row = makePresetRow("HD", "H.264");
        QFont font = row->font();
        font.setPointSize(12);
        font.setBold(true);
        row->setFont(font);
        QPalette palette = row->palette();
        palette.setColor(QPalette::WindowText, Qt::red);
        row->setPalette(palette);
        QCOMPARE(Painted(*row),
                 Drawn(*row,
                       { { u"HD"_s, titleBox(*row, u"HD"_s) },
                         { u"H.264"_s, QRect(306, 18, 209, 17) } }));
    }

    void aNodeTitleIsTheTranslatedName()
    {
        const Test::InstalledCatalogue catalogue(
                { { "RPObject", "Portable players", u"Tragbare Geräte"_s } });
        const auto row = makeRow();
        row->node = Test::MakeNode("Portable players", "never shown");
        QCOMPARE(row->Title(), u"Tragbare Geräte"_s);
        QCOMPARE(Painted(*row), Drawn(*row, { { u"Tragbare Geräte"_s, QRect(52, 10, 490, 33) } }));
    }

    void theTextsAreTranslatedOnEveryPaint()
    {
        const auto row = makePresetRow("Best", "High Quality");
        const auto drawn = [&](const QString &title, const QString &description) {
            return Drawn(*row,
                         { { title, titleBox(*row, title) },
                           { description, QRect(306, 18, 209, 17) } });
        };
        QCOMPARE(Painted(*row), drawn(u"Best"_s, u"High Quality"_s));
        const Test::InstalledCatalogue catalogue(
                { { "RPObject", "Best", u"Beste"_s }, { "RPObject", "High Quality", u"Hoch"_s } });
        QCOMPARE(Painted(*row), drawn(u"Beste"_s, u"Hoch"_s));
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtItemDataWdg_Texts)

#include "tst_rpfmtitemdatawdg_texts.moc"
