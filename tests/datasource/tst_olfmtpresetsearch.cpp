#include "TestCase.h"

#include "FormatObjects.h"

#include "OLFmtPresetDataSource.h"

using namespace std::literals;

using Orlimo::IOLFmtPresetDataSource;
using Orlimo::IOLFormatNode;
using Orlimo::OLFmtPresetDataSource;
using Test::ChildNames;
using Test::Item;
using Test::MakeItem;
using Test::MakeNode;
using Test::MakePreset;
using Test::Node;
using Test::PresetNames;

namespace {

Node WithPresets(const Node &node, std::initializer_list<const char *> names)
{
    for (const char *name : names)
        node->AddPreset(MakePreset(name));
    return node;
}

Node WithChildren(const Node &node, std::initializer_list<Node> children)
{
    for (const Node &child : children) {
        child->SetParent(node);
        node->AppendChild(child);
    }
    return node;
}

// Formats
//   Video
//     MP4: HD 1080P, HD 720P, Auto
//     avi: HD 1080P
//   Audio
//     MP3: High, Low
//   Empty
Node Tree()
{
    return WithChildren(MakeNode("Formats", "all"),
                        { WithChildren(MakeNode("Video", "moving", 3),
                                       { WithPresets(MakeNode("MP4", "MP4 Format", 1001),
                                                     { "HD 1080P", "HD 720P", "Auto" }),
                                         WithPresets(MakeNode("avi", "old", 1010),
                                                     { "HD 1080P" }) }),
                          WithChildren(MakeNode("Audio", "sound", 4),
                                       { WithPresets(MakeNode("MP3", "music", 1033),
                                                     { "High", "Low" }) }),
                          MakeNode("Empty") });
}

// The tree as one line: name[presets](children).
std::string Outline(const IOLFormatNode &node)
{
    std::string children;
    for (int i = 0; i < node.ChildCount(); ++i)
        Test::Join(children, Outline(*node.ChildAt(i)));
    return node.Name() + '[' + PresetNames(node) + "](" + children + ')';
}

} // namespace

class tst_OLFmtPresetSearch : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theSearchKeepsWhatMatches_data();
    void theSearchKeepsWhatMatches();
    void presetsAreFoundByTheirDescription();
    void lettersAreFoldedByUnicode_data();
    void lettersAreFoldedByUnicode();
    void aLongKeywordIsFoundInRepetitionsWithoutDelay();
    void searchingForNothingOrInNothingGivesNothing();
    void theResultsRootIsACopyWithoutTheRest();
    void theResultIsIndependentOfTheTree();
    void theReceivingNodeIsNotTouched();
    void aListNodeIsSearchedLikeAnyOther();

private:
    OLFmtPresetDataSource m_source;
    const IOLFmtPresetDataSource &m_dataSource = m_source;

    Node search(const Node &node, const std::string &keyword) const
    {
        return m_dataSource.SearchFormatNode(node, keyword, nullptr);
    }
};

void tst_OLFmtPresetSearch::theSearchKeepsWhatMatches_data()
{
    QTest::addColumn<std::string>("keyword");
    QTest::addColumn<std::string>("result");
    const std::string mp4 = "MP4[HD 1080P, HD 720P, Auto]()";
    const std::string avi = "avi[HD 1080P]()";
    const std::string video = "Video[](" + mp4 + ", " + avi + ')';
    const std::string audio = "Audio[](MP3[High, Low]())";
    QTest::newRow("a category is kept whole") << "video"s
                                              << "Formats[](" + video + ')';
    QTest::newRow("a format is kept whole") << "mp4"s
                                            << "Formats[](Video[](" + mp4 + "))";
    QTest::newRow("presets, in the order of the tree")
            << "1080p"s
            << "Formats[](Video[](MP4[HD 1080P](), avi[HD 1080P]()))"s;
    QTest::newRow("one preset") << "low"s
                                << "Formats[](Audio[](MP3[Low]()))"s;
    QTest::newRow("categories and formats")
            << "A"s
            << "Formats[](Video[](MP4[Auto](), " + avi + "), " + audio + ')';
    QTest::newRow("an empty node by its name") << "EMPTY"s
                                               << "Formats[](Empty[]())"s;
    QTest::newRow("upper-case keyword, lower-case name") << "AVI"s
                                                         << "Formats[](Video[](" + avi + "))";
    QTest::newRow("inside a name") << "ide"s
                                   << "Formats[](" + video + ')';
    QTest::newRow("a blank counts") << "hd 7"s
                                    << "Formats[](Video[](MP4[HD 720P]()))"s;
    QTest::newRow("blanks around count") << " mp4"s
                                         << "Formats[]()"s;
    QTest::newRow("no pattern") << "m.4"s
                                << "Formats[]()"s;
    QTest::newRow("no match") << "webm"s
                              << "Formats[]()"s;
    QTest::newRow("the root's name does not count") << "formats"s
                                                    << "Formats[]()"s;
    QTest::newRow("a child's description does not count") << "music"s
                                                          << "Formats[]()"s;
    QTest::newRow("longer than every name") << std::string(100'000, 'a') << "Formats[]()"s;
    QTest::newRow("zero byte") << "MP4\0"s
                               << "Formats[]()"s;
}

void tst_OLFmtPresetSearch::theSearchKeepsWhatMatches()
{
    QFETCH(const std::string, keyword);
    const Node tree = Tree();
    const std::string before = Outline(*tree);
    const Node result = search(tree, keyword);
    QVERIFY(result);
    QTEST(Outline(*result), "result");
    QCOMPARE(Outline(*tree), before);
}

void tst_OLFmtPresetSearch::presetsAreFoundByTheirDescription()
{
    const Node format = MakeNode("MP4");
    format->AddPreset(MakePreset("HD", "H.264, 1920 x 1080"));
    format->AddPreset(MakePreset("SD", "H.263"));
    format->AddPreset(MakePreset("h.264 fast", ""));
    QCOMPARE(PresetNames(*search(format, "h.264")), "HD, h.264 fast"s);
    QCOMPARE(PresetNames(*search(format, "H.26")), "HD, SD, h.264 fast"s);
    QCOMPARE(PresetNames(*search(format, "hdh")), ""s);
}

void tst_OLFmtPresetSearch::lettersAreFoldedByUnicode_data()
{
    QTest::addColumn<std::string>("name");
    QTest::addColumn<std::string>("keyword");
    QTest::addColumn<bool>("found");
    QTest::newRow("latin") << "Größe"s
                           << "GRÖ"s << true;
    QTest::newRow("greek") << "Βίντεο"s
                           << "ΒΊΝ"s << true;
    QTest::newRow("cyrillic") << "ВИДЕО"s
                              << "видео"s << true;
    QTest::newRow("beyond the first plane") << "𐐀"s
                                            << "𐐨"s << true;
    QTest::newRow("no letter case") << "動画変換"s
                                    << "画変"s << true;
    QTest::newRow("an accent counts") << "Vidéo"s
                                      << "video"s << false;
    QTest::newRow("composed is not decomposed") << "\u00E9"s
                                                << "e\u0301"s << false;
    QTest::newRow("part of a character") << "é"s
                                         << "\xA9"s << true;
    QTest::newRow("not UTF-8") << "A\xFF"
                                  "B"s
                               << "a\xFF"
                                  "b"s
                               << true;
}

void tst_OLFmtPresetSearch::lettersAreFoldedByUnicode()
{
    QFETCH(const std::string, name);
    QFETCH(const std::string, keyword);
    const Node root = WithChildren(MakeNode("root"), { MakeNode(name) });
    QTEST(search(root, keyword)->ChildCount() == 1, "found");
    const std::vector<Item> items { MakeItem(MakePreset(name), MakeNode(name)) };
    QTEST(m_dataSource.FilterRecentItems(items, keyword) == items, "found");
}

void tst_OLFmtPresetSearch::aLongKeywordIsFoundInRepetitionsWithoutDelay()
{
    const std::string half(std::size_t(1) << 20, 'a');
    const Node tree = MakeNode("Formats");
    tree->AddPreset(MakePreset(half + half, half + 'b' + half));
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(m_dataSource.SearchFormatNode(tree, half + 'b' + half, nullptr)->PresetCount(), 1);
    QCOMPARE(m_dataSource.SearchFormatNode(tree, half + "bb", nullptr)->PresetCount(), 0);
    QVERIFY(timer.elapsed() < 5'000);
}

void tst_OLFmtPresetSearch::searchingForNothingOrInNothingGivesNothing()
{
    QVERIFY(!search(Tree(), ""));
    QVERIFY(!search(nullptr, "mp4"));
    QVERIFY(!search(nullptr, ""));
}

void tst_OLFmtPresetSearch::theResultsRootIsACopyWithoutTheRest()
{
    const Node format = WithPresets(MakeNode("MP4", "MP4 Format", 1001), { "HD" });
    const Node result = search(format, "none");
    QVERIFY(result);
    QVERIFY(result != format);
    QVERIFY(result->IsEqual(format));
    QCOMPARE(Outline(*result), "MP4[]()"s);
}

void tst_OLFmtPresetSearch::theResultIsIndependentOfTheTree()
{
    const Node tree = Tree();
    const std::string before = Outline(*tree);
    const int encoder = tree->ChildAt(1)->ChildAt(0)->PresetAt(1)->CurrentVideoCodecIndex();
    for (const char *keyword : { "low", "mp3", "audio" }) {
        const Node result = search(tree, keyword);
        const Node format = result->ChildAt(0)->ChildAt(0);
        QVERIFY(format->IsEqual(tree->ChildAt(1)->ChildAt(0)));
        const auto preset = format->FindPreset("Low");
        preset->SetName("renamed");
        preset->SetCurrentVideoCodecIndex(encoder == 0 ? 1 : 0);
        format->SetName("renamed");
        format->AddPreset(MakePreset("more"));
        result->ChildAt(0)->AppendChild(MakeNode("more"));
        result->RemoveChildAt(0);
        QCOMPARE(Outline(*tree), before);
    }
    QCOMPARE(tree->ChildAt(1)->ChildAt(0)->PresetAt(1)->CurrentVideoCodecIndex(), encoder);
}

void tst_OLFmtPresetSearch::theReceivingNodeIsNotTouched()
{
    const Node receiver = WithPresets(MakeNode("receiver"), { "own" });
    const Node result = m_dataSource.SearchFormatNode(Tree(), "mp4", receiver);
    QVERIFY(result != receiver);
    QCOMPARE(Outline(*result), "Formats[](Video[](MP4[HD 1080P, HD 720P, Auto]()))"s);
    QCOMPARE(Outline(*receiver), "receiver[own]()"s);
}

void tst_OLFmtPresetSearch::aListNodeIsSearchedLikeAnyOther()
{
    m_source.AddCustomPreset(MakePreset("holiday"), MakeNode("MP4"));
    m_source.AddCustomPreset(MakePreset("work"), MakeNode("MP4"));
    const Node result = search(m_source.GetCustomFormatNode(), "Holi");
    QCOMPARE(Outline(*result), "Custom[](MP4[holiday]())"s);
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetSearch)

#include "tst_olfmtpresetsearch.moc"
