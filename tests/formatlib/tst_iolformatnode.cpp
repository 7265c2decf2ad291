#include "TestCase.h"

#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <limits>
#include <utility>
#include <vector>

using Orlimo::IOLFormatNode;
using Orlimo::IOLFormatPreset;

using NodePointer = std::shared_ptr<IOLFormatNode>;
using PresetPointer = std::shared_ptr<IOLFormatPreset>;

namespace {

NodePointer Node(const std::string &name)
{
    const NodePointer node = IOLFormatNode::MallocFormatNode(NodePointer());
    node->SetName(name);
    return node;
}

PresetPointer Preset(const std::string &name)
{
    const PresetPointer preset = IOLFormatPreset::MallocFormatPreset("MP4", "");
    preset->SetName(name);
    return preset;
}

NodePointer NodeWithChildren(const std::vector<std::string> &names)
{
    const NodePointer node = Node("parent");
    for (const std::string &name : names)
        node->AppendChild(Node(name));
    return node;
}

std::string ChildNames(const NodePointer &node)
{
    std::string names;
    for (int i = 0; i < node->ChildCount(); ++i)
        names += node->ChildAt(i)->Name();
    return names;
}

std::string PresetNames(const NodePointer &node)
{
    std::string names;
    for (int i = 0; i < node->PresetCount(); ++i)
        names += node->PresetAt(i)->Name();
    return names;
}

} // namespace

class tst_IOLFormatNode : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewNodeIsEmpty()
    {
        const NodePointer node = IOLFormatNode::MallocFormatNode(NodePointer());
        QVERIFY(node);
        QCOMPARE(node->Name(), std::string());
        QCOMPARE(node->Description(), std::string());
        QCOMPARE(node->FaceID(), 0);
        QCOMPARE(node->PresetCount(), 0);
        QCOMPARE(node->ChildCount(), 0);
        QVERIFY(!node->Parent());
        QVERIFY(!node->FirstChild());
        QVERIFY(!node->FirstFormatPreset());
        QVERIFY(!std::as_const(*node).FirstFormatPreset());
    }

    void aNewNodeRecordsItsParentOnly()
    {
        const NodePointer parent = Node("parent");
        const NodePointer node = IOLFormatNode::MallocFormatNode(parent);
        QCOMPARE(node->Parent(), parent);
        QCOMPARE(parent->ChildCount(), 0);
    }

    void attributesAreKept()
    {
        const NodePointer node = Node("MP4");
        node->SetName("ä\n");
        node->SetDescription("MP4 日本");
        node->SetFaceID(-7);
        QCOMPARE(node->Name(), std::string("ä\n"));
        QCOMPARE(node->Description(), std::string("MP4 日本"));
        QCOMPARE(node->FaceID(), -7);
    }

    void aParentIsReplacedAndTakenAway()
    {
        const NodePointer node = Node("node");
        const NodePointer parent = Node("parent");
        node->SetParent(Node("gone"));
        QVERIFY(!node->Parent());
        node->SetParent(parent);
        QCOMPARE(node->Parent(), parent);
        node->SetParent(nullptr);
        QVERIFY(!node->Parent());
    }

    void aNodeOwnsItsChildrenAndPresetsButNotItsParent()
    {
        NodePointer parent = Node("parent");
        const NodePointer child = Node("child");
        child->SetParent(parent);
        parent->AppendChild(child);
        parent->AddPreset(Preset("preset"));
        const std::weak_ptr<IOLFormatNode> weakParent = parent;
        const std::weak_ptr<IOLFormatPreset> weakPreset = parent->FirstFormatPreset();
        QVERIFY(!weakPreset.expired());

        parent.reset();
        QVERIFY(weakParent.expired());
        QVERIFY(weakPreset.expired());
        QVERIFY(!child->Parent());
        QCOMPARE(child->Name(), std::string("child"));
    }

    void childrenStandInTheOrderOfAppending()
    {
        const NodePointer node = NodeWithChildren({ "a", "b", "c" });
        QCOMPARE(ChildNames(node), std::string("abc"));
        QCOMPARE(node->FirstChild(), node->ChildAt(0));
    }

    void appendingRecordsNoParent()
    {
        const NodePointer node = NodeWithChildren({ "a" });
        QVERIFY(!node->FirstChild()->Parent());
    }

    void bothChildAtOperationsGiveTheSame_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("first") << 0 << QByteArray("a");
        QTest::newRow("last") << 1 << QByteArray("b");
        QTest::newRow("none") << -1 << QByteArray();
        QTest::newRow("behind the last") << 2 << QByteArray();
        QTest::newRow("smallest") << std::numeric_limits<int>::min() << QByteArray();
        QTest::newRow("largest") << std::numeric_limits<int>::max() << QByteArray();
    }

    void bothChildAtOperationsGiveTheSame()
    {
        QFETCH(const int, index);
        QFETCH(const QByteArray, name);
        const NodePointer node = NodeWithChildren({ "a", "b" });
        const NodePointer child = node->ChildAt(index);
        QCOMPARE(std::as_const(*node).ChildAt(index), child);
        QCOMPARE(child ? child->Name() : std::string(), name.toStdString());
    }

    void presetsStandInTheOrderOfAdding()
    {
        const NodePointer node = Node("MP4");
        node->AddPreset(Preset("a"));
        node->AddPreset(Preset("b"));
        QCOMPARE(PresetNames(node), std::string("ab"));
        QCOMPARE(node->FirstFormatPreset(), node->PresetAt(0));
        QCOMPARE(std::as_const(*node).FirstFormatPreset(), node->PresetAt(0));
        QVERIFY(!node->PresetAt(-1));
        QVERIFY(!node->PresetAt(2));
    }

    void emptyPointersAreNotAppended()
    {
        const NodePointer node = Node("node");
        node->AppendChild(nullptr);
        node->AddPreset(nullptr);
        QCOMPARE(node->ChildCount(), 0);
        QCOMPARE(node->PresetCount(), 0);
    }

    void removePresetTakesTheFirstOfTheName()
    {
        const NodePointer node = Node("MP4");
        for (const char *name : { "a", "b", "a" })
            node->AddPreset(Preset(name));
        const PresetPointer last = node->PresetAt(2);
        QVERIFY(node->RemovePreset("a"));
        QCOMPARE(PresetNames(node), std::string("ba"));
        QCOMPARE(node->PresetAt(1), last);
        QVERIFY(!node->RemovePreset("A"));
        QVERIFY(!node->RemovePreset(""));
        QCOMPARE(PresetNames(node), std::string("ba"));
    }

    void findPresetGivesTheFirstOfTheName()
    {
        const NodePointer node = Node("MP4");
        for (const char *name : { "a", "ä", "a" })
            node->AddPreset(Preset(name));
        QCOMPARE(node->FindPreset("a"), node->PresetAt(0));
        QCOMPARE(node->FindPreset("ä"), node->PresetAt(1));
        QVERIFY(!node->FindPreset("Ä"));
        QVERIFY(!node->FindPreset(""));
    }

    void findChildGivesTheFirstOfTheName()
    {
        const NodePointer node = NodeWithChildren({ "a", "b", "a" });
        QCOMPARE(node->FindChild("a"), node->ChildAt(0));
        QCOMPARE(node->FindChild("b"), node->ChildAt(1));
        QVERIFY(!node->FindChild("B"));
        QVERIFY(!node->FindChild("parent"));
    }

    void removeChildByNameTakesTheFirst()
    {
        const NodePointer node = NodeWithChildren({ "a", "b", "a", "c" });
        node->RemoveChild(std::string("a"));
        QCOMPARE(ChildNames(node), std::string("bac"));
        node->RemoveChild(std::string("nobody"));
        QCOMPARE(ChildNames(node), std::string("bac"));
    }

    void removeChildByPointerTakesThisVeryNode()
    {
        const NodePointer node = NodeWithChildren({ "a", "b", "a" });
        const NodePointer last = node->ChildAt(2);
        node->RemoveChild(last);
        QCOMPARE(ChildNames(node), std::string("ab"));
        node->RemoveChild(last);
        node->RemoveChild(NodePointer());
        QCOMPARE(ChildNames(node), std::string("ab"));
        QCOMPARE(last->Name(), std::string("a"));
    }

    void removeChildAtTakesTheIndex()
    {
        const NodePointer node = NodeWithChildren({ "a", "b", "c" });
        node->RemoveChildAt(-1);
        node->RemoveChildAt(3);
        QCOMPARE(ChildNames(node), std::string("abc"));
        node->RemoveChildAt(1);
        QCOMPARE(ChildNames(node), std::string("ac"));
        node->RemoveChildAt(1);
        node->RemoveChildAt(0);
        QCOMPARE(node->ChildCount(), 0);
    }

    void equalityLooksAtTheNodeAlone()
    {
        const NodePointer node = NodeWithChildren({ "a" });
        const NodePointer other = Node("parent");
        other->AddPreset(Preset("preset"));
        other->SetParent(node);
        QVERIFY(node->IsEqual(other));
        QVERIFY(node->IsEqual(node));
        QVERIFY(!node->IsEqual(nullptr));
        other->SetName("Parent");
        QVERIFY(!node->IsEqual(other));
        other->SetName("parent");
        other->SetDescription("text");
        QVERIFY(!node->IsEqual(other));
        other->SetDescription("");
        other->SetFaceID(1);
        QVERIFY(!node->IsEqual(other));
    }
};

ORLIMO_TEST_MAIN(tst_IOLFormatNode)

#include "tst_iolformatnode.moc"
