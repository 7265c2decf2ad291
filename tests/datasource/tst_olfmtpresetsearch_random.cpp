#include "TestCase.h"

#include "FormatObjects.h"

#include "OLFmtPresetDataSource.h"

#include <algorithm>
#include <array>
#include <optional>
#include <random>

using namespace std::literals;

using Orlimo::IOLFormatNode;
using Orlimo::OLFmtPresetDataSource;
using Test::Node;

namespace {

// Letters in two cases, of one to four bytes, and what has no case.
constexpr std::array<std::array<const char *, 2>, 6> letters { {
        { "A", "a" },
        { "B", "b" },
        { "Ä", "ä" },
        { "Ж", "ж" },
        { "𐐀", "𐐨" },
        { " ", " " },
} };

// A text and the same text with every letter in lower case.
struct Text
{
    std::string text;
    std::string lower;

    bool operator==(const Text &other) const { return text == other.text; }
    bool contains(const Text &keyword) const
    {
        return lower.find(keyword.lower) != std::string::npos;
    }
};

struct PlainPreset
{
    Text name;
    Text description;

    bool operator==(const PlainPreset &) const = default;
};

// What a search looks at in a tree, as plain values.
struct PlainNode
{
    Text name;
    Text description;
    int faceID = 0;
    std::vector<PlainPreset> presets;
    std::vector<PlainNode> children;

    bool operator==(const PlainNode &) const = default;
};

class Generator
{
public:
    explicit Generator(unsigned seed)
        : m_engine(seed)
    {
    }

    int upTo(int largest) { return std::uniform_int_distribution(0, largest)(m_engine); }

    Text text(int shortest, int longest)
    {
        Text result;
        const int length = shortest + upTo(longest - shortest);
        for (int i = 0; i < length; ++i) {
            const auto &letter = letters[std::size_t(upTo(int(letters.size()) - 1))];
            result.text += letter[std::size_t(upTo(1))];
            result.lower += letter[1];
        }
        return result;
    }

    // Few letters, which repeat themselves as beginnings of a keyword do within it.
    Text repetitions()
    {
        Text result;
        while (result.lower.size() < 200) {
            std::string word;
            for (int i = upTo(2); i >= 0; --i)
                word += upTo(1) == 0 ? 'a' : 'b';
            for (int i = upTo(20); i >= 0; --i)
                result.lower += word;
        }
        result.text = result.lower;
        return result;
    }

    // A part of the text, perhaps with another letter somewhere.
    Text partOf(const Text &whole, std::size_t length)
    {
        Text part;
        part.lower = whole.lower.substr(std::size_t(upTo(int(whole.lower.size() - length))),
                                        length);
        if (upTo(1) == 0)
            part.lower[std::size_t(upTo(int(length) - 1))] = upTo(1) == 0 ? 'a' : 'b';
        part.text = part.lower;
        return part;
    }

    PlainNode tree(int depth)
    {
        PlainNode node { text(0, 4), text(0, 4), upTo(3), {}, {} };
        for (int i = upTo(3); i > 0; --i)
            node.presets.push_back({ text(0, 4), text(0, 4) });
        for (int i = depth > 0 ? upTo(4) : 0; i > 0; --i)
            node.children.push_back(tree(depth - 1));
        return node;
    }

private:
    std::mt19937 m_engine;
};

// The rules of the search, on plain values.
PlainNode Expected(const PlainNode &node, const Text &keyword)
{
    PlainNode result { node.name, node.description, node.faceID, {}, {} };
    std::ranges::copy_if(node.presets, std::back_inserter(result.presets), [&](const auto &preset) {
        return preset.name.contains(keyword) || preset.description.contains(keyword);
    });
    for (const PlainNode &child : node.children) {
        const bool whole = child.name.contains(keyword);
        PlainNode kept = whole ? child : Expected(child, keyword);
        if (whole || !kept.presets.empty() || !kept.children.empty())
            result.children.push_back(std::move(kept));
    }
    return result;
}

Node ToNode(const PlainNode &plain)
{
    const Node node = Test::MakeNode(plain.name.text, plain.description.text, plain.faceID);
    for (const PlainPreset &preset : plain.presets)
        node->AddPreset(Test::MakePreset(preset.name.text, preset.description.text));
    for (const PlainNode &child : plain.children)
        node->AppendChild(ToNode(child));
    return node;
}

PlainNode FromNode(const IOLFormatNode &node)
{
    PlainNode plain { { node.Name(), {} }, { node.Description(), {} }, node.FaceID(), {}, {} };
    for (int i = 0; i < node.PresetCount(); ++i) {
        const auto preset = node.PresetAt(i);
        plain.presets.push_back({ { preset->Name(), {} }, { preset->Description(), {} } });
    }
    for (int i = 0; i < node.ChildCount(); ++i)
        plain.children.push_back(FromNode(*node.ChildAt(i)));
    return plain;
}

} // namespace

class tst_OLFmtPresetSearch_Random : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theSearchFollowsItsRulesInAnyTree_data();
    void theSearchFollowsItsRulesInAnyTree();
    void longKeywordsAreFoundAsShortOnesAre();
};

void tst_OLFmtPresetSearch_Random::theSearchFollowsItsRulesInAnyTree_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 40; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_OLFmtPresetSearch_Random::theSearchFollowsItsRulesInAnyTree()
{
    QFETCH(const unsigned, seed);
    Generator random(seed);
    const PlainNode plain = random.tree(4);
    const Node tree = ToNode(plain);
    OLFmtPresetDataSource dataSource;
    for (int i = 0; i < 25; ++i) {
        const Text keyword = random.text(1, 3);
        const Node result = dataSource.SearchFormatNode(tree, keyword.text, nullptr);
        QVERIFY(result);
        QVERIFY2(FromNode(*result) == Expected(plain, keyword), keyword.text.c_str());
    }
    QVERIFY(FromNode(*tree) == plain);
}

void tst_OLFmtPresetSearch_Random::longKeywordsAreFoundAsShortOnesAre()
{
    Generator generator(1);
    OLFmtPresetDataSource dataSource;
    int found = 0;
    int missed = 0;
    for (int round = 0; round < 300; ++round) {
        PlainNode plain;
        for (int i = 0; i < 20; ++i)
            plain.presets.push_back({ generator.repetitions(), {} });
        for (std::size_t length = 30; length <= 40; ++length) {
            const Text keyword = generator.partOf(plain.presets.front().name, length);
            const Node result = dataSource.SearchFormatNode(ToNode(plain), keyword.text, nullptr);
            const PlainNode expected = Expected(plain, keyword);
            QVERIFY2(FromNode(*result) == expected, keyword.text.c_str());
            found += int(expected.presets.size());
            missed += int(plain.presets.size() - expected.presets.size());
        }
    }
    QVERIFY(found > 1000);
    QVERIFY(missed > 1000);
}

ORLIMO_TEST_MAIN(tst_OLFmtPresetSearch_Random)

#include "tst_olfmtpresetsearch_random.moc"
