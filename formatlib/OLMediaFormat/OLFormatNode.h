#pragma once

#include "IOLFormatNode.h"

#include <vector>

namespace Orlimo {

class OLFormatNode final : public IOLFormatNode
{
public:
    OLFormatNode() = default;
    OLFormatNode(const OLFormatNode &) = delete;
    OLFormatNode &operator=(const OLFormatNode &) = delete;
    ~OLFormatNode();

    void Reserve(std::size_t presets, std::size_t children);

    std::shared_ptr<IOLFormatNode> Parent() const override;
    void SetParent(std::shared_ptr<IOLFormatNode> parent) override;
    int FaceID() const override;
    void SetFaceID(int faceID) override;
    std::string Name() const override;
    std::string Description() const override;
    void SetName(std::string name) override;
    void SetDescription(std::string description) override;
    std::shared_ptr<IOLFormatNode> Clone(int flags) const override;
    std::shared_ptr<const IOLJsonValue> ToJsonValue() const override;

    int PresetCount() const override;
    std::shared_ptr<IOLFormatPreset> PresetAt(int index) const override;
    void AddPreset(std::shared_ptr<IOLFormatPreset> preset) override;
    bool RemovePreset(std::string name) override;
    std::shared_ptr<IOLFormatPreset> FindPreset(std::string name) const override;

    int ChildCount() const override;
    std::shared_ptr<IOLFormatNode> ChildAt(int index) const override;
    std::shared_ptr<IOLFormatNode> ChildAt(int index) override;
    void AppendChild(std::shared_ptr<IOLFormatNode> child) override;
    void RemoveChild(std::string name) override;
    void RemoveChild(std::shared_ptr<IOLFormatNode> child) override;
    void RemoveChildAt(int index) override;
    std::shared_ptr<IOLFormatNode> FindChild(std::string name) const override;

    bool IsEqual(std::shared_ptr<const IOLFormatNode> other) const override;

private:
    std::shared_ptr<OLFormatNode> CloneAttributes() const;
    void CloneContentsInto(const std::shared_ptr<OLFormatNode> &copy) const;

    std::weak_ptr<IOLFormatNode> m_parent;
    std::string m_name;
    std::string m_description;
    std::vector<std::shared_ptr<IOLFormatPreset>> m_presets;
    std::vector<std::shared_ptr<IOLFormatNode>> m_children;
    int m_faceID = 0;
};

} // namespace Orlimo
