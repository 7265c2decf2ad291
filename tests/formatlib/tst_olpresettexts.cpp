#include "TestCase.h"

#include "OLPresetTexts.h"

#include <string>
#include <utility>

using Orlimo::OLPresetTexts;

namespace {

// More than an object holds in itself.
const std::string longText(1'000, 'x');

} // namespace

class tst_OLPresetTexts : public Test::TestCase
{
    Q_OBJECT

private:
    static void TextColumns()
    {
        QTest::addColumn<std::string>("name");
        QTest::addColumn<std::string>("description");
        QTest::addColumn<std::string>("formatName");
        using namespace std::string_literals;
        QTest::newRow("short") << "HD 1080P"s
                               << "H.264, 1920 x 1080"s
                               << "MP4"s;
        QTest::newRow("none") << ""s
                              << ""s
                              << ""s;
        QTest::newRow("no name") << ""s
                                 << "H.264"s
                                 << "MP4"s;
        QTest::newRow("no description") << "HD 1080P"s
                                        << ""s
                                        << "MP4"s;
        QTest::newRow("no format") << "HD 1080P"s
                                   << "H.264"s
                                   << ""s;
        QTest::newRow("long name") << longText << "H.264"s
                                   << "MP4"s;
        QTest::newRow("long description") << "HD 1080P"s << longText << "MP4"s;
        QTest::newRow("all long") << longText << longText + 'y' << longText + 'z';
        QTest::newRow("just inside") << std::string(30, 'n') << std::string(31, 'd') << "MP4"s;
        QTest::newRow("just outside") << std::string(30, 'n') << std::string(32, 'd') << "MP4"s;
        QTest::newRow("zero bytes") << "a\0b"s
                                    << "\0"s
                                    << "c\0"s;
        QTest::newRow("not ASCII") << "Größe"s
                                   << "1920 × 1080"s
                                   << "日本"s;
    }

    static void ExpectTexts(const OLPresetTexts &texts, const std::string &name,
                            const std::string &description, const std::string &formatName)
    {
        QCOMPARE(std::string(texts.Name()), name);
        QCOMPARE(std::string(texts.Description()), description);
        QCOMPARE(std::string(texts.FormatName()), formatName);
    }

private Q_SLOTS:
    void textsAreKept_data() { TextColumns(); }

    void textsAreKept()
    {
        QFETCH(const std::string, name);
        QFETCH(const std::string, description);
        QFETCH(const std::string, formatName);
        ExpectTexts({ name, description, formatName }, name, description, formatName);
    }

    void anotherNameLeavesTheOtherTexts_data() { TextColumns(); }

    void anotherNameLeavesTheOtherTexts()
    {
        QFETCH(const std::string, name);
        QFETCH(const std::string, description);
        QFETCH(const std::string, formatName);
        for (const std::string &other : { std::string(), std::string("4K"), longText }) {
            OLPresetTexts texts(name, description, formatName);
            texts.SetName(other);
            ExpectTexts(texts, other, description, formatName);
            texts.SetName(name);
            ExpectTexts(texts, name, description, formatName);
        }
    }

    void theNameMayBecomeAPartOfTheTexts()
    {
        OLPresetTexts texts(longText, "H.264", "MP4");
        texts.SetName(texts.Description());
        ExpectTexts(texts, "H.264", "H.264", "MP4");
    }

    void aCopyIsIndependent_data() { TextColumns(); }

    void aCopyIsIndependent()
    {
        QFETCH(const std::string, name);
        QFETCH(const std::string, description);
        QFETCH(const std::string, formatName);
        OLPresetTexts texts(name, description, formatName);
        const OLPresetTexts copy = texts;
        OLPresetTexts assigned({}, longText, {});
        assigned = texts;
        texts.SetName("changed");
        ExpectTexts(copy, name, description, formatName);
        ExpectTexts(assigned, name, description, formatName);
    }

    void whatWasMovedFromKeepsItsTexts()
    {
        OLPresetTexts texts("HD 1080P", longText, "MP4");
        const OLPresetTexts moved = std::move(texts);
        ExpectTexts(moved, "HD 1080P", longText, "MP4");
        ExpectTexts(texts, "HD 1080P", longText, "MP4");
    }
};

ORLIMO_TEST_MAIN(tst_OLPresetTexts)

#include "tst_olpresettexts.moc"
