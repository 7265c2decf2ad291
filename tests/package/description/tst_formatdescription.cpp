#include "TestCase.h"

#include "IOLArtworkImageGroup.h"
#include "IOLArtworkImageMgr.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLJsonReader.h"

#include <QSet>

#include <algorithm>
#include <vector>

using namespace Orlimo;
using namespace Qt::StringLiterals;

using NodePointer = std::shared_ptr<IOLFormatNode>;

// The format description of the example host and the artwork file beside it, as the library reads
// them.
class tst_FormatDescription : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void itHasTheFourCategories();
    void itHasAtLeastThirtyFormatsAndTwoHundredPresets();
    void everyFormatHasNameDescriptionAndPresets();
    void everyTranslatedFormatTextOccurs_data();
    void everyTranslatedFormatTextOccurs();
    void everyFaceHasArtwork();
    void theFacesOfThePickerHaveArtwork_data();
    void theFacesOfThePickerHaveArtwork();

private:
    std::vector<NodePointer> Formats() const;

    NodePointer m_root;
    std::shared_ptr<const IOLArtworkImageMgr> m_artwork;
};

namespace {

std::vector<NodePointer> ChildrenOf(const NodePointer &node)
{
    std::vector<NodePointer> children;
    for (int i = 0; i < node->ChildCount(); ++i)
        children.push_back(node->ChildAt(i));
    return children;
}

QString DescriptionOf(const NodePointer &node)
{
    return QString::fromStdString(node->Description());
}

// The node's own face and those of all presets and nodes below it.
void CollectFaces(const NodePointer &node, QSet<int> &faces)
{
    faces.insert(node->FaceID());
    for (int i = 0; i < node->PresetCount(); ++i)
        faces.insert(node->PresetAt(i)->FaceID());
    for (const NodePointer &child : ChildrenOf(node))
        CollectFaces(child, faces);
}

} // namespace

void tst_FormatDescription::initTestCase()
{
    m_root = IOLFormatNode::MallocFormatNode(
            IOLJsonReader::ReadJsonFile(ORLIMO_DESCRIPTION_FILE, nullptr));
    QVERIFY(m_root);
    m_artwork = IOLArtworkImageMgr::MallocArtworkImageMgr(ORLIMO_ARTWORK_FILE, nullptr);
    QVERIFY(m_artwork);
}

std::vector<NodePointer> tst_FormatDescription::Formats() const
{
    std::vector<NodePointer> formats;
    for (const NodePointer &category : ChildrenOf(m_root)) {
        const auto children = ChildrenOf(category);
        formats.insert(formats.end(), children.begin(), children.end());
    }
    return formats;
}

void tst_FormatDescription::itHasTheFourCategories()
{
    QStringList names;
    for (const NodePointer &category : ChildrenOf(m_root))
        names.append(QString::fromStdString(category->Name()));
    names.sort();
    QCOMPARE(names, QStringList({ u"Audio"_s, u"Device"_s, u"Video"_s, u"Web Video"_s }));
}

void tst_FormatDescription::itHasAtLeastThirtyFormatsAndTwoHundredPresets()
{
    const auto formats = Formats();
    int presets = 0;
    for (const NodePointer &format : formats)
        presets += format->PresetCount();
    QVERIFY2(formats.size() >= 30, qPrintable(QString::number(formats.size())));
    QVERIFY2(presets >= 200, qPrintable(QString::number(presets)));
}

void tst_FormatDescription::everyFormatHasNameDescriptionAndPresets()
{
    for (const NodePointer &format : Formats()) {
        QVERIFY(!format->Name().empty());
        QVERIFY2(!format->Description().empty(), format->Name().c_str());
        QVERIFY2(format->PresetCount() > 0, format->Name().c_str());
    }
}

// The catalogues find these texts by their exact spelling, uneven as it is.
void tst_FormatDescription::everyTranslatedFormatTextOccurs_data()
{
    const auto texts = {
        "3GPP file format",
        "3GPP2 file format",
        "AVI file format with DIVX",
        "AVI file format with XVID",
        "Audio Interchange File Format",
        "Audiovisual Media file format",
        "MOV file format with Apple ProRes",
        "MP4 file format",
        "MP4 file format for iTunes",
        "MP4 file format with HEVC",
        "MPEG File format for VCD",
        "MPEG file format for DVD - Video",
        "MPEG file format for SVCD",
        "MXF file format with Apple ProRes",
        "MXF file format with DNxHD",
        "Matroska Audio File Format",
        "Matroska file format",
        "Matroska file format with HEVC",
        "Simple Audio File Format",
        "Waveform Audio File Format",
    };
    QTest::addColumn<QString>("text");
    for (const char *text : texts)
        QTest::newRow(text) << QString::fromLatin1(text);
}

void tst_FormatDescription::everyTranslatedFormatTextOccurs()
{
    QFETCH(const QString, text);
    const auto formats = Formats();
    QVERIFY(std::ranges::find(formats, text, DescriptionOf) != formats.end());
}

void tst_FormatDescription::everyFaceHasArtwork()
{
    QSet<int> faces;
    for (const NodePointer &category : ChildrenOf(m_root))
        CollectFaces(category, faces);
    QVERIFY(faces.size() > 4);

    QList<int> bare;
    for (const int face : std::as_const(faces)) {
        const auto group = m_artwork->ArtworkGroup(face);
        if (!group || group->Icon().isNull())
            bare.append(face);
    }
    QCOMPARE(bare, QList<int>());
}

void tst_FormatDescription::theFacesOfThePickerHaveArtwork_data()
{
    QTest::addColumn<int>("face");
    QTest::newRow("recent") << IOLArtworkImageMgr::CategoryFaceIDRecentList;
    QTest::newRow("custom") << IOLArtworkImageMgr::CategoryFaceIDCustomize;
    QTest::newRow("MP4") << IOLArtworkImageMgr::FormatFaceIDMP4;
}

void tst_FormatDescription::theFacesOfThePickerHaveArtwork()
{
    QFETCH(const int, face);
    QVERIFY(m_artwork->ArtworkGroup(face));
}

ORLIMO_TEST_MAIN(tst_FormatDescription)
#include "tst_formatdescription.moc"
