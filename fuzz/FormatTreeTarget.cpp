#include "FuzzTargets.h"

#include "Require.h"
#include "TreeComparison.h"

#include "IOLError.h"
#include "IOLFormatNode.h"
#include "IOLJsonReader.h"
#include "IOLJsonValue.h"
#include "IOLJsonWriter.h"

using Orlimo::IOLError;
using Orlimo::IOLFormatNode;
using Orlimo::IOLJsonReader;
using Orlimo::IOLJsonValue;
using Orlimo::IOLJsonWriter;

namespace Fuzz {

namespace {

using Node = std::shared_ptr<IOLFormatNode>;

// Requires an error record for every failure, and none otherwise.
Node ReadTree(const std::string &text)
{
    std::shared_ptr<const IOLError> error;
    const std::shared_ptr<const IOLJsonValue> json = IOLJsonReader::ReadJsonString(text, &error);
    Require(!json == bool(error), "a text that is not JSON, and no other, gives an error");
    if (!json)
        return nullptr;
    Node tree = IOLFormatNode::MallocFormatNode(json, &error);
    Require(!tree == bool(error), "a faulty description, and no other, gives an error");
    Require(!error || !error->Message().empty(), "an error says something");
    return tree;
}

std::string WriteTree(const Node &tree)
{
    return IOLJsonWriter::WriteJsonString(tree->ToJsonValue());
}

} // namespace

void FormatTree(QByteArrayView input)
{
    const Node tree = ReadTree(std::string(input.data(), std::size_t(input.size())));
    if (!tree)
        return;
    const std::string text = WriteTree(tree);
    const Node again = ReadTree(text);
    Require(again != nullptr, "what was written can be read");
    Require(WriteTree(again) == text, "a tree is written as the text that it was read from");
    RequireSameTree(tree, again);
}

} // namespace Fuzz
