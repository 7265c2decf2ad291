#include "IOLFormatNode.h"

#include "IOLJsonValue.h"
#include "OLFormatNode.h"
#include "OLFormatTreeReader.h"

#include <utility>

namespace Orlimo {

IOLFormatNode::IOLFormatNode() = default;
IOLFormatNode::IOLFormatNode(const IOLFormatNode &) = default;
IOLFormatNode::IOLFormatNode(IOLFormatNode &&) = default;
IOLFormatNode &IOLFormatNode::operator=(const IOLFormatNode &) = default;
IOLFormatNode &IOLFormatNode::operator=(IOLFormatNode &&) = default;
IOLFormatNode::~IOLFormatNode() = default;

const int IOLFormatNode::CloneAll = 7;

std::shared_ptr<IOLFormatNode> IOLFormatNode::MallocFormatNode(
        std::shared_ptr<IOLFormatNode> parent)
{
    auto node = std::make_shared<OLFormatNode>();
    node->SetParent(std::move(parent));
    return node;
}

std::shared_ptr<IOLFormatNode> IOLFormatNode::MallocFormatNode(
        const std::shared_ptr<const IOLJsonValue> &json)
{
    return MallocFormatNode(json, nullptr);
}

std::shared_ptr<IOLFormatNode> IOLFormatNode::MallocFormatNode(
        const std::shared_ptr<const IOLJsonValue> &json, std::shared_ptr<const IOLError> *error)
{
    return OLFormatTreeReader::Read(json ? json->ToQJsonValue() : QJsonValue(), error);
}

std::shared_ptr<IOLFormatNode> IOLFormatNode::FirstChild() const
{
    return ChildAt(0);
}

std::shared_ptr<IOLFormatPreset> IOLFormatNode::FirstFormatPreset()
{
    return PresetAt(0);
}

std::shared_ptr<const IOLFormatPreset> IOLFormatNode::FirstFormatPreset() const
{
    return PresetAt(0);
}

} // namespace Orlimo
