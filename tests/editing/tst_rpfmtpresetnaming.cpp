#include "TestCase.h"

#include "RPFmtPresetNaming.h"

#include <algorithm>
#include <vector>

using Orlimo::NamesFormat;
using Orlimo::ProposeCustomName;

class tst_RPFmtPresetNaming : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void namesFormatFindsTheNodeNameInThePresetName_data()
    {
        QTest::addColumn<QByteArray>("preset");
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<bool>("named");
        QTest::newRow("the same") << QByteArray("MP4") << QByteArray("MP4") << true;
        QTest::newRow("at the start") << QByteArray("MP4 HD") << QByteArray("MP4") << true;
        QTest::newRow("at the end") << QByteArray("HD MP4") << QByteArray("MP4") << true;
        QTest::newRow("inside a word") << QByteArray("xMP4y") << QByteArray("MP4") << true;
        QTest::newRow("other name") << QByteArray("HD") << QByteArray("MP4") << false;
        QTest::newRow("other letter case") << QByteArray("mp4 HD") << QByteArray("MP4") << false;
        QTest::newRow("only a part") << QByteArray("MP") << QByteArray("MP4") << false;
        QTest::newRow("no node name") << QByteArray("HD") << QByteArray() << true;
        QTest::newRow("no preset name") << QByteArray() << QByteArray("MP4") << false;
        QTest::newRow("no name at all") << QByteArray() << QByteArray() << true;
        QTest::newRow("beyond ASCII") << QByteArray("Größe L") << QByteArray("Größe") << true;
    }

    void namesFormatFindsTheNodeNameInThePresetName()
    {
        QFETCH(const QByteArray, preset);
        QFETCH(const QByteArray, node);
        QTEST(NamesFormat(preset.toStdString(), node.toStdString()), "named");
    }

    void proposalIsTheFirstFreeName_data()
    {
        QTest::addColumn<QByteArray>("preset");
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<QByteArrayList>("taken");
        QTest::addColumn<QByteArray>("proposal");
        const QByteArrayList none;
        QTest::newRow("named after the format")
                << QByteArray("MP4") << QByteArray("MP4") << none << QByteArray("MP4-custom0");
        QTest::newRow("contains the format") << QByteArray("HD MP4") << QByteArray("MP4") << none
                                             << QByteArray("HD MP4-custom0");
        QTest::newRow("other name")
                << QByteArray("HD") << QByteArray("MP4") << none << QByteArray("MP4 HD-custom0");
        QTest::newRow("other letter case")
                << QByteArray("mp4") << QByteArray("MP4") << none << QByteArray("MP4 mp4-custom0");
        QTest::newRow("no preset name")
                << QByteArray() << QByteArray("MP4") << none << QByteArray("MP4-custom0");
        QTest::newRow("no node") << QByteArray("HD") << QByteArray() << none
                                 << QByteArray("HD-custom0");
        QTest::newRow("no name at all")
                << QByteArray() << QByteArray() << none << QByteArray("-custom0");
        QTest::newRow("beyond ASCII") << QByteArray("小") << QByteArray("Größe") << none
                                      << QByteArray("Größe 小-custom0");
        QTest::newRow("of a custom preset")
                << QByteArray("MP4-custom0") << QByteArray("MP4")
                << QByteArrayList { "MP4-custom0" } << QByteArray("MP4-custom0-custom0");
    }

    void proposalIsTheFirstFreeName() { compareProposal(); }

    void takenNamesRaiseTheNumber_data()
    {
        QTest::addColumn<QByteArray>("preset");
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<QByteArrayList>("taken");
        QTest::addColumn<QByteArray>("proposal");
        const QByteArray mp4 = "MP4";
        QTest::newRow("the first")
                << mp4 << mp4 << QByteArrayList { "MP4-custom0" } << QByteArray("MP4-custom1");
        QTest::newRow("a gap") << mp4 << mp4 << QByteArrayList { "MP4-custom0", "MP4-custom2" }
                               << QByteArray("MP4-custom1");
        QTest::newRow("not the first")
                << mp4 << mp4 << QByteArrayList { "MP4-custom1" } << QByteArray("MP4-custom0");
        QTest::newRow("up to two digits")
                << mp4 << mp4 << numbered("MP4-custom", 10) << QByteArray("MP4-custom10");
        QTest::newRow("up to three digits")
                << mp4 << mp4 << numbered("MP4-custom", 101) << QByteArray("MP4-custom101");
        QTest::newRow("with the format")
                << QByteArray("HD") << mp4 << QByteArrayList { "MP4 HD-custom0" }
                << QByteArray("MP4 HD-custom1");
        QTest::newRow("without a preset name")
                << QByteArray() << mp4 << QByteArrayList { "MP4-custom0" }
                << QByteArray("MP4-custom1");
        QTest::newRow("other letter case")
                << mp4 << mp4 << QByteArrayList { "mp4-custom0" } << QByteArray("MP4-custom0");
        QTest::newRow("longer name")
                << mp4 << mp4 << QByteArrayList { "MP4-custom00" } << QByteArray("MP4-custom0");
        QTest::newRow("bare suffix")
                << mp4 << mp4 << QByteArrayList { "MP4-custom" } << QByteArray("MP4-custom0");
    }

    void takenNamesRaiseTheNumber() { compareProposal(); }

    void theProposalFitsALineEdit_data()
    {
        QTest::addColumn<QByteArray>("preset");
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<QByteArrayList>("taken");
        QTest::addColumn<QByteArray>("proposal");
        const QByteArrayList none;
        const QByteArray mp4 = "MP4";
        const QByteArray longest(32759, 'x'); // 32767 with "-custom0"
        QTest::newRow("just fits") << longest << QByteArray() << none << longest + "-custom0";
        QTest::newRow("one too many")
                << longest + 'y' << QByteArray() << none << longest + "-custom0";
        QTest::newRow("far too many")
                << longest.repeated(3) << QByteArray() << none << longest + "-custom0";
        QTest::newRow("with the format")
                << longest << mp4 << none << "MP4 " + longest.chopped(4) + "-custom0";
        QTest::newRow("without a preset name")
                << QByteArray() << longest + 'y' << none << longest + "-custom0";
        QTest::newRow("taken") << longest + 'y' << QByteArray()
                               << QByteArrayList { longest + "-custom0" } << longest + "-custom1";
        QTest::newRow("two digits") << longest << QByteArray() << numbered(longest + "-custom", 10)
                                    << longest.chopped(1) + "-custom10";
        QTest::newRow("beyond ASCII, just fits")
                << QByteArray("ä").repeated(32759) << QByteArray() << none
                << QByteArray("ä").repeated(32759) + "-custom0";
        QTest::newRow("beyond ASCII, one too many")
                << QByteArray("ä").repeated(32760) << QByteArray() << none
                << QByteArray("ä").repeated(32759) + "-custom0";
        const QByteArray pair = "𐐀";
        QTest::newRow("no half of a pair") << longest.chopped(1) + pair + "yz" << QByteArray()
                                           << none << longest.chopped(1) + "-custom0";
        QTest::newRow("a whole pair") << longest.chopped(2) + pair + "yz" << QByteArray() << none
                                      << longest.chopped(2) + pair + "-custom0";
    }

    void theProposalFitsALineEdit() { compareProposal(); }

    void theProposalIsValidUtf8_data()
    {
        QTest::addColumn<QByteArray>("preset");
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<QByteArrayList>("taken");
        QTest::addColumn<QByteArray>("proposal");
        const QByteArrayList none;
        const QByteArray broken = "HD\xff";
        QTest::newRow("preset") << broken << QByteArray() << none
                                << QByteArray("HD\xef\xbf\xbd-custom0");
        QTest::newRow("node") << QByteArray() << broken << none
                              << QByteArray("HD\xef\xbf\xbd-custom0");
        QTest::newRow("taken as it is stored")
                << broken << QByteArray() << QByteArrayList { "HD\xef\xbf\xbd-custom0" }
                << QByteArray("HD\xef\xbf\xbd-custom1");
    }

    void theProposalIsValidUtf8() { compareProposal(); }

    void candidatesAreTriedInOrderUpToTheFirstFreeOne()
    {
        std::vector<std::string> tried;
        const auto isInUse = [&tried](const std::string &name) {
            tried.push_back(name);
            return tried.size() < 3;
        };
        QCOMPARE(ProposeCustomName("HD", "MP4", isInUse), std::string("MP4 HD-custom2"));
        const std::vector<std::string> expected { "MP4 HD-custom0", "MP4 HD-custom1",
                                                  "MP4 HD-custom2" };
        QCOMPARE(tried, expected);
    }

private:
    static QByteArrayList numbered(const QByteArray &start, int count)
    {
        QByteArrayList names;
        for (int i = 0; i < count; ++i)
            names += start + QByteArray::number(i);
        return names;
    }

    static void compareProposal()
    {
        QFETCH(const QByteArray, preset);
        QFETCH(const QByteArray, node);
        QFETCH(const QByteArrayList, taken);
        const std::string proposal = ProposeCustomName(preset.toStdString(), node.toStdString(),
                                                       [&taken](const std::string &name) {
                                                           return taken.contains(
                                                                   QByteArray::fromStdString(name));
                                                       });
        QTEST(QByteArray::fromStdString(proposal), "proposal");
    }
};

ORLIMO_TEST_MAIN(tst_RPFmtPresetNaming)

#include "tst_rpfmtpresetnaming.moc"
