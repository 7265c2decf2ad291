#include "SearchInput.h"

#include <algorithm>

namespace Fuzz {

namespace {

constexpr std::size_t deepest = 500;         // as deep as descriptions go
constexpr int mostLines = 50'000;            // as many presets as a description of 1 MB has
constexpr std::size_t longestKeyword = 4096; // plain code looks for longer ones too slowly

std::string TakeUpTo(char separator, QByteArrayView &bytes)
{
    const qsizetype end = bytes.indexOf(separator);
    const QByteArrayView taken = end < 0 ? bytes : bytes.first(end);
    bytes = end < 0 ? QByteArrayView() : bytes.sliced(end + 1);
    return std::string(taken.data(), std::size_t(taken.size()));
}

PlainPreset NameAndDescription(QByteArrayView line)
{
    std::string name = TakeUpTo('\t', line);
    return { std::move(name), std::string(line.data(), std::size_t(line.size())) };
}

// The nodes from the root to the one that is being added to, by their places among the children.
class TreeReader
{
public:
    explicit TreeReader(PlainNode &root)
        : m_path { &root }
    {
    }

    void TakeLine(QByteArrayView line)
    {
        if (line.startsWith('>'))
            AddChild(NameAndDescription(line.sliced(1)));
        else if (line.startsWith('+'))
            m_path.back()->presets.push_back(NameAndDescription(line.sliced(1)));
        else if (line.startsWith('<'))
            GoBack();
        else
            SetTexts(*m_path.front(), NameAndDescription(line));
    }

private:
    static void SetTexts(PlainNode &node, PlainPreset texts)
    {
        node.name = std::move(texts.name);
        node.description = std::move(texts.description);
    }

    void AddChild(PlainPreset texts)
    {
        if (m_path.size() == deepest)
            GoBack();
        SetTexts(m_path.back()->children.emplace_back(), std::move(texts));
        m_path.push_back(&m_path.back()->children.back());
    }

    void GoBack()
    {
        if (m_path.size() > 1)
            m_path.pop_back();
    }

    std::vector<PlainNode *> m_path; // only the last child of each grows, so the others stay put
};

} // namespace

SearchInput ReadSearchInput(QByteArrayView bytes)
{
    SearchInput input;
    input.keyword = TakeUpTo('\n', bytes);
    input.keyword.resize(std::min(input.keyword.size(), longestKeyword));
    TreeReader reader(input.root);
    for (int line = 0; line < mostLines && !bytes.isEmpty(); ++line)
        reader.TakeLine(TakeUpTo('\n', bytes));
    return input;
}

} // namespace Fuzz
