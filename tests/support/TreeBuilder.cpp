#include "TreeBuilder.h"

#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

using namespace Orlimo;

namespace Test {

std::shared_ptr<IOLFormatPreset> MakePreset(const std::string &name, const std::string &description,
                                            int faceID)
{
    auto preset = IOLFormatPreset::MallocFormatPreset(name, description);
    preset->SetFaceID(faceID);
    return preset;
}

std::shared_ptr<IOLFormatNode> MakeNode(const std::string &name, const std::string &description,
                                        int faceID)
{
    auto node = IOLFormatNode::MallocFormatNode(std::shared_ptr<IOLFormatNode>());
    node->SetName(name);
    node->SetDescription(description);
    node->SetFaceID(faceID);
    return node;
}

std::shared_ptr<IOLFormatNode> MakeFormat(const std::string &name,
                                          std::initializer_list<const char *> presets)
{
    auto format = MakeNode(name);
    for (const char *preset : presets)
        format->AddPreset(MakePreset(preset));
    return format;
}

std::shared_ptr<IOLFormatNode> MakeCategory(
        const std::string &name, std::initializer_list<std::shared_ptr<IOLFormatNode>> formats)
{
    auto category = MakeNode(name);
    for (const auto &format : formats) {
        format->SetParent(category);
        category->AppendChild(format);
    }
    return category;
}

} // namespace Test
