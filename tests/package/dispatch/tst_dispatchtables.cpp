#include "TestCase.h"

#include "DispatchTable.h"

#include "IOLAppSettings.h"
#include "IOLArtworkImageGroup.h"
#include "IOLArtworkImageMgr.h"
#include "IOLCodecPreset.h"
#include "IOLFmtPresetDataSource.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLMediaFormatPopup.h"

#include <algorithm>

using namespace Orlimo;
using namespace Qt::StringLiterals;

using Object = std::shared_ptr<const void>;

// Hosts are built against the tables of the headers and meet those of the loaded libraries: these
// are the ones read here. Moving an operation breaks every built host without a word.
class tst_DispatchTables : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theTableOfTheLoadedLibraryHasTheseOperationsOnly_data();
    void theTableOfTheLoadedLibraryHasTheseOperationsOnly();
    void theTableOfTheLoadedLibraryKeepsTheOrder_data();
    void theTableOfTheLoadedLibraryKeepsTheOrder();
    void twoLookupsStandSideBySide_data();
    void twoLookupsStandSideBySide();
    void theArtworkLookupIsTheFirstOperation();
    void anOperationOfAnotherOrderIsNoticed();
};

namespace {

Object EmptyNode()
{
    return IOLFormatNode::MallocFormatNode(std::shared_ptr<IOLFormatNode>());
}

std::shared_ptr<IOLFormatPreset> SomePreset()
{
    return IOLFormatPreset::MallocFormatPreset("MP4", "");
}

Object Artwork()
{
    return IOLArtworkImageMgr::MallocArtworkImageMgr(ORLIMO_ARTWORK_FILE, nullptr);
}

void AddRow(const char *interface, const Object &object, const QStringList &operations)
{
    QTest::newRow(interface) << object << operations;
}

void AddObjectColumns()
{
    QTest::addColumn<Object>("object");
    QTest::addColumn<QStringList>("operations");
}

QStringList DataSourceOperations()
{
    const auto item = u"shared_ptr<IOLFmtPresetRecentItem>"_s;
    const auto choice = u"shared_ptr<IOLFormatPreset const>, shared_ptr<IOLFormatNode const>"_s;
    return { u"AsyncLoadExternalDataSource(string const&, function<void ()>)"_s,
             u"WaitForLoadingComplete()"_s,
             u"GetDefaultFormatNode()"_s,
             u"GetLatestRecentItem() const"_s,
             u"GetDefaultRecentItem() const"_s,
             u"GetRecentItems() const"_s,
             u"AddRecentPreset(%1)"_s.arg(choice),
             u"AddRecentItem(%1)"_s.arg(item),
             u"RemoveRecentItem(%1)"_s.arg(item),
             u"RemoveRecentItemByName(string const&)"_s,
             u"SaveRecentPresets()"_s,
             u"GetCustomFormatNode()"_s,
             u"GetCustomFormatNode() const"_s,
             u"AddCustomPreset(%1)"_s.arg(choice),
             u"RemoveCustomPreset(%1)"_s.arg(choice),
             u"SaveCustomPresets()"_s,
             u"GetArtworkGroup(int) const"_s,
             u"FilterRecentItems(vector<%1> const&, string const&) const"_s.arg(item),
             u"SearchFormatNode(shared_ptr<IOLFormatNode>, string const&, "
             "shared_ptr<IOLFormatNode>) const"_s };
}

QStringList NodeOperations()
{
    return { u"SetParent(shared_ptr<IOLFormatNode>)"_s,
             u"FaceID() const"_s,
             u"SetFaceID(int)"_s,
             u"Name() const"_s,
             u"Description() const"_s,
             u"SetName(string)"_s,
             u"SetDescription(string)"_s,
             u"Clone(int) const"_s,
             u"ToJsonValue() const"_s,
             u"PresetCount() const"_s,
             u"PresetAt(int) const"_s,
             u"AddPreset(shared_ptr<IOLFormatPreset>)"_s,
             u"RemovePreset(string)"_s,
             u"FindPreset(string) const"_s,
             u"ChildCount() const"_s,
             u"ChildAt(int) const"_s,
             u"ChildAt(int)"_s,
             u"AppendChild(shared_ptr<IOLFormatNode>)"_s,
             u"RemoveChild(string)"_s,
             u"RemoveChild(shared_ptr<IOLFormatNode>)"_s,
             u"RemoveChildAt(int)"_s,
             u"FindChild(string) const"_s,
             u"IsEqual(shared_ptr<IOLFormatNode const>) const"_s };
}

QStringList PresetOperations()
{
    return { u"SetFaceID(int)"_s,
             u"Name() const"_s,
             u"SetName(string)"_s,
             u"Description() const"_s,
             u"Clone() const"_s,
             u"CopySettingsFrom(shared_ptr<IOLFormatPreset>)"_s,
             u"IsEqual(shared_ptr<IOLFormatPreset const>) const"_s,
             u"VideoCodecCount() const"_s,
             u"VideoCodecAt(int) const"_s,
             u"CurrentVideoCodecIndex() const"_s,
             u"SetCurrentVideoCodecIndex(int)"_s,
             u"AudioCodecCount() const"_s,
             u"AudioCodecAt(int) const"_s,
             u"CurrentAudioCodecIndex() const"_s,
             u"SetCurrentAudioCodecIndex(int)"_s };
}

QStringList CodecOperations()
{
    QStringList operations { u"Name() const"_s };
    for (const QString &list :
         { u"Resolution"_s, u"FrameRate"_s, u"Quality"_s, u"Channel"_s, u"SampleRate"_s })
        operations += { list + u"Count() const"_s, list + u"At(int) const"_s,
                        u"Current%1Index() const"_s.arg(list), u"Set%1Index(int)"_s.arg(list) };
    return operations;
}

// The places of the operations, each looked for behind the one before it.
QList<qsizetype> PlacesInOrder(const Test::DispatchTable &table, const QStringList &operations)
{
    QList<qsizetype> places;
    for (const QString &operation : operations) {
        const qsizetype from = places.isEmpty() ? 0 : places.last() + 1;
        const qsizetype place = table.IndexOf(operation, from);
        if (place < 0)
            break;
        places.append(place);
    }
    return places;
}

QByteArray Described(const Test::DispatchTable &table)
{
    return (table.ClassName() + u":\n"_s + table.Lines().join(u'\n')).toUtf8();
}

} // namespace

void tst_DispatchTables::theTableOfTheLoadedLibraryHasTheseOperationsOnly_data()
{
    AddObjectColumns();

    const auto callback = u"function<void (shared_ptr<IOLFormatPreset const>, "
                          "shared_ptr<IOLFormatNode const>)>"_s;
    AddRow("IOLMediaFormatPopup", IOLMediaFormatPopup::Shared(),
           { u"ShowFormatPopup(PopupRect const&, %1)"_s.arg(callback),
             u"ShowFormatPopupAt(PopupPoint const&, %1)"_s.arg(callback),
             u"EditFormatPreset(shared_ptr<IOLFormatPreset>, shared_ptr<IOLFormatNode>)"_s });

    AddRow("IOLFmtPresetDataSource", IOLFmtPresetDataSource::Shared(), DataSourceOperations());
    AddRow("IOLFmtPresetRecentItem", IOLFmtPresetDataSource::Shared()->GetDefaultRecentItem(),
           { u"GetFormatNode() const"_s, u"GetFormatPreset() const"_s, u"GetDisplayName() const"_s,
             u"GetDescription() const"_s, u"GetFaceID() const"_s, u"Clone() const"_s,
             u"IsEqual(shared_ptr<IOLFmtPresetRecentItem>) const"_s });
}

void tst_DispatchTables::theTableOfTheLoadedLibraryHasTheseOperationsOnly()
{
    QFETCH(const Object, object);
    QFETCH(const QStringList, operations);
    const Test::DispatchTable table(object.get());
    QVERIFY2(table.IsValid(), qPrintable(table.Fault()));
    QVERIFY2(table.Count() == operations.size(), Described(table).constData());
    for (qsizetype i = 0; i < operations.size(); ++i)
        QVERIFY2(table.IndexOf(operations.at(i), i) == i, Described(table).constData());
}

// The format libraries may put further operations between these.
void tst_DispatchTables::theTableOfTheLoadedLibraryKeepsTheOrder_data()
{
    AddObjectColumns();

    AddRow("IOLFormatNode", EmptyNode(), NodeOperations());
    AddRow("IOLFormatPreset", SomePreset(), PresetOperations());
    AddRow("IOLCodecPreset", SomePreset()->VideoCodecAt(0), CodecOperations());
    AddRow("IOLArtworkImageMgr", Artwork(), { u"ArtworkGroup(int) const"_s });
    AddRow("IOLAppSettings", IOLAppSettings::Shared(),
           { u"SetValue(string, string)"_s, u"Value(string) const"_s, u"Save()"_s });
}

void tst_DispatchTables::theTableOfTheLoadedLibraryKeepsTheOrder()
{
    QFETCH(const Object, object);
    QFETCH(const QStringList, operations);
    QVERIFY(object);
    const Test::DispatchTable table(object.get());
    QVERIFY2(table.IsValid(), qPrintable(table.Fault()));
    const qsizetype found = PlacesInOrder(table, operations).size();
    QVERIFY2(found == operations.size(),
             "not behind the one before it: " + operations.value(found).toUtf8() + " in "
                     + Described(table));
}

// Where the compiler has merged the two, as g++ does with optimisation, their order makes no
// difference and cannot be seen.
void tst_DispatchTables::twoLookupsStandSideBySide_data()
{
    AddObjectColumns();
    AddRow("children of a node", EmptyNode(), { u"ChildAt(int) const"_s, u"ChildAt(int)"_s });
    AddRow("custom presets", IOLFmtPresetDataSource::Shared(),
           { u"GetCustomFormatNode()"_s, u"GetCustomFormatNode() const"_s });
}

void tst_DispatchTables::twoLookupsStandSideBySide()
{
    QFETCH(const Object, object);
    QFETCH(const QStringList, operations);
    const Test::DispatchTable table(object.get());
    const QList<qsizetype> places = PlacesInOrder(table, operations);
    QCOMPARE(places.size(), 2);
    QCOMPARE(places.last() - places.first(), 1);
}

void tst_DispatchTables::theArtworkLookupIsTheFirstOperation()
{
    const Object artwork = Artwork();
    QVERIFY(artwork);
    QCOMPARE(Test::DispatchTable(artwork.get()).IndexOf(u"ArtworkGroup(int) const"_s), 0);
}

void tst_DispatchTables::anOperationOfAnotherOrderIsNoticed()
{
    const Test::DispatchTable table(IOLAppSettings::Shared().get());
    QCOMPARE(PlacesInOrder(table, { u"Save()"_s, u"Value(string) const"_s }).size(), 1);
    QCOMPARE(PlacesInOrder(table, { u"Value(string)"_s }).size(), 0);
}

ORLIMO_TEST_MAIN(tst_DispatchTables)
#include "tst_dispatchtables.moc"
