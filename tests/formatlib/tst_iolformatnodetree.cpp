#include "FormatTreeDocument.h"
#include "TestCase.h"

#include "IOLCodecPreset.h"

#include <vector>

using Orlimo::IOLFormatNode;
using Orlimo::IOLFormatPreset;

using NodePointer = std::shared_ptr<IOLFormatNode>;

namespace {

constexpr int greatDepth = 200'000;

NodePointer AppendNode(const NodePointer &parent)
{
    const NodePointer node = IOLFormatNode::MallocFormatNode(parent);
    parent->AppendChild(node);
    return node;
}

// Returns the nodes of a chain from the top down.
std::vector<NodePointer> Chain(int depth)
{
    std::vector<NodePointer> nodes { IOLFormatNode::MallocFormatNode(NodePointer()) };
    while (static_cast<int>(nodes.size()) < depth)
        nodes.push_back(AppendNode(nodes.back()));
    return nodes;
}

} // namespace

// Copying whole trees and letting them go.
class tst_IOLFormatNodeTree : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aPlainCloneHasTheAttributesOnly_data()
    {
        QTest::addColumn<int>("flags");
        QTest::newRow("the flag of the search") << 1;
        QTest::newRow("no flag") << 0;
        QTest::newRow("another") << -1;
    }

    void aPlainCloneHasTheAttributesOnly()
    {
        QFETCH(const int, flags);
        QVERIFY(flags != IOLFormatNode::CloneAll);
        const NodePointer root = Test::Load(Test::SampleDocument());
        const NodePointer node = root->FirstChild()->FirstChild();
        const NodePointer copy = node->Clone(flags);
        QVERIFY(copy != node);
        QCOMPARE(copy->Name(), std::string("MP4"));
        QCOMPARE(copy->Description(), std::string("MP4 file format"));
        QCOMPARE(copy->FaceID(), 1001);
        QCOMPARE(copy->PresetCount(), 0);
        QCOMPARE(copy->ChildCount(), 0);
        QVERIFY(node->Parent());
        QVERIFY(!copy->Parent());
        QCOMPARE(node->PresetCount(), 2);
    }

    void aFullCloneIsDeep()
    {
        const NodePointer root = Test::Load(Test::SampleDocument());
        const NodePointer copy = root->Clone(IOLFormatNode::CloneAll);
        QVERIFY(!copy->Parent());
        QCOMPARE(copy->ToJsonValue()->ToQJsonValue(), root->ToJsonValue()->ToQJsonValue());

        const NodePointer format = copy->FirstChild()->FirstChild();
        QVERIFY(format != root->FirstChild()->FirstChild());
        QCOMPARE(format->Parent(), copy->FirstChild());
        QCOMPARE(copy->FirstChild()->Parent(), copy);

        format->FirstFormatPreset()->CurrentVideoCodec()->SetQualityIndex(0);
        format->FirstFormatPreset()->SetName("changed");
        format->SetName("changed");
        copy->RemoveChildAt(1);
        QCOMPARE(root->ToJsonValue()->ToQJsonValue(),
                 Test::Load(Test::SampleDocument())->ToJsonValue()->ToQJsonValue());
    }

    void aFullCloneOfABranchHasNoParent()
    {
        const NodePointer root = Test::Load(Test::SampleDocument());
        const NodePointer branch = root->FirstChild()->Clone(IOLFormatNode::CloneAll);
        QVERIFY(!branch->Parent());
        QCOMPARE(branch->FirstChild()->Parent(), branch);
        QCOMPARE(branch->FirstChild()->PresetCount(), 2);
    }

    void aTreeGoesWithItsRoot()
    {
        NodePointer root = Test::Load(Test::SampleDocument());
        NodePointer copy = root->Clone(IOLFormatNode::CloneAll);
        for (NodePointer *tree : { &root, &copy }) {
            const std::weak_ptr<IOLFormatNode> top = *tree;
            const std::weak_ptr<IOLFormatNode> format = (*tree)->FirstChild()->FirstChild();
            const std::weak_ptr<IOLFormatPreset> preset = format.lock()->FirstFormatPreset();
            tree->reset();
            QVERIFY(top.expired());
            QVERIFY(format.expired());
            QVERIFY(preset.expired());
        }
    }

    void aBranchOutlivesItsTree()
    {
        NodePointer root = Test::Load(Test::SampleDocument());
        const NodePointer branch = root->FirstChild();
        root.reset();
        QVERIFY(!branch->Parent());
        QCOMPARE(branch->FirstChild()->Name(), std::string("MP4"));
        QCOMPARE(branch->FirstChild()->Parent(), branch);
    }

    void aVeryDeepTreeIsDestroyed()
    {
        std::vector<NodePointer> nodes = Chain(greatDepth);
        NodePointer root = nodes.front();
        const std::weak_ptr<IOLFormatNode> deepest = nodes.back();
        nodes.clear();
        QVERIFY(!deepest.expired());
        root.reset();
        QVERIFY(deepest.expired());
    }

    void aVeryDeepTreeIsDestroyedUpToTheBranchThatSomebodyHolds()
    {
        std::vector<NodePointer> nodes = Chain(greatDepth);
        NodePointer root = nodes.front();
        NodePointer branch = nodes[greatDepth / 2];
        const std::weak_ptr<IOLFormatNode> above = nodes[greatDepth / 2 - 1];
        const std::weak_ptr<IOLFormatNode> deepest = nodes.back();
        nodes.clear();
        root.reset();
        QVERIFY(above.expired());
        QVERIFY(!deepest.expired());
        QVERIFY(!branch->Parent());
        branch.reset();
        QVERIFY(deepest.expired());
    }
};

ORLIMO_TEST_MAIN(tst_IOLFormatNodeTree)

#include "tst_iolformatnodetree.moc"
