#include "TestCase.h"

#include "CatalogueBuilder.h"
#include "OLFormatText.h"

using Orlimo::TranslateFormatText;
using Test::InstalledCatalogue;

namespace {

using namespace Qt::StringLiterals;

struct Lookup
{
    QByteArray context;
    QByteArray source;
    QByteArray disambiguation;

    friend bool operator==(const Lookup &, const Lookup &) = default;
};

// Has no translations and notes what it is asked for of the format library's texts.
class Listener : public QTranslator
{
public:
    Listener() { QCoreApplication::installTranslator(this); }

    QString translate(const char *context, const char *source, const char *disambiguation,
                      int) const override
    {
        if (qstrcmp(context, "RPObject") == 0)
            lookups.append({ context, source, disambiguation });
        return {};
    }

    bool isEmpty() const override { return false; }

    mutable QList<Lookup> lookups;
};

} // namespace

class tst_OLFormatText : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutACatalogueEveryTextIsShownAsItIs_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("shown");
        QTest::newRow("empty") << QByteArray() << QString();
        QTest::newRow("listed") << QByteArray("Same as source") << u"Same as source"_s;
        QTest::newRow("not listed") << QByteArray("A new format") << u"A new format"_s;
        QTest::newRow("UTF-8") << QByteArray("プリセット é") << u"プリセット é"_s;
        QTest::newRow("placeholders") << QByteArray("100 %n %1") << u"100 %n %1"_s;
    }

    void withoutACatalogueEveryTextIsShownAsItIs()
    {
        QFETCH(const QByteArray, text);
        QTEST(TranslateFormatText(text.toStdString()), "shown");
    }

    void aTextIsItsOwnDisambiguation()
    {
        const Listener listener;
        TranslateFormatText("Web Video");
        const QList<Lookup> expected { { "RPObject", "Web Video", "Web Video" } };
        QVERIFY(listener.lookups == expected);
    }

    void aMessageWithoutACommentIsFound()
    {
        const InstalledCatalogue catalogue({ { "RPObject", "Web Video", u"Vidéo Web"_s },
                                             { "RPObject", "Größe", u"Taille"_s } });
        QCOMPARE(TranslateFormatText("Web Video"), u"Vidéo Web"_s);
        QCOMPARE(TranslateFormatText("Größe"), u"Taille"_s);
    }

    void theSpellingDecides()
    {
        const InstalledCatalogue catalogue(
                { { "RPObject", "MPEG File format for VCD", u"Format MPEG"_s } });
        QCOMPARE(TranslateFormatText("MPEG File format for VCD"), u"Format MPEG"_s);
        QCOMPARE(TranslateFormatText("MPEG file format for VCD"), u"MPEG file format for VCD"_s);
    }

    void otherContextsDoNotCount()
    {
        const InstalledCatalogue catalogue(
                { { "RPFmtEditingDlgClass", "Quality", u"Qualität"_s } });
        QCOMPARE(TranslateFormatText("Quality"), u"Quality"_s);
    }

    void aTextThatTheCatalogueLacksIsShownAsItIs()
    {
        const InstalledCatalogue catalogue({ { "RPObject", "Video", u"Vidéo"_s } });
        QCOMPARE(TranslateFormatText("A new format"), u"A new format"_s);
        QCOMPARE(TranslateFormatText(""), QString());
    }

    void anEmptyTranslationIsShownAsItsText()
    {
        const InstalledCatalogue catalogue({ { "RPObject", "Sample Rate", u""_s } });
        QCOMPARE(TranslateFormatText("Sample Rate"), u"Sample Rate"_s);
    }

    void nothingIsRememberedWhenTheCatalogueChanges()
    {
        {
            const InstalledCatalogue catalogue({ { "RPObject", "Video", u"Vidéo"_s } });
            QCOMPARE(TranslateFormatText("Video"), u"Vidéo"_s);
        }
        QCOMPARE(TranslateFormatText("Video"), u"Video"_s);
        const InstalledCatalogue catalogue({ { "RPObject", "Video", u"ビデオ"_s } });
        QCOMPARE(TranslateFormatText("Video"), u"ビデオ"_s);
    }
};

ORLIMO_TEST_MAIN(tst_OLFormatText)

#include "tst_olformattext.moc"
