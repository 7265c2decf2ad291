#pragma once

#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLJsonValue.h"

#include <memory>
#include <string>
#include <vector>

namespace Test {

// A node that only has attributes, counts who asks for them, and is equal to what its maker says.
class CountingNode final : public Orlimo::IOLFormatNode
{
    using Node = std::shared_ptr<Orlimo::IOLFormatNode>;
    using Preset = std::shared_ptr<Orlimo::IOLFormatPreset>;

public:
    std::string name;
    std::string description;
    int faceID = 0;
    bool equal = true;

    mutable int nameCalls = 0;
    mutable int descriptionCalls = 0;
    mutable std::vector<std::shared_ptr<const Orlimo::IOLFormatNode>> comparedWith;

    int FaceID() const override { return faceID; }
    std::string Name() const override
    {
        ++nameCalls;
        return name;
    }
    std::string Description() const override
    {
        ++descriptionCalls;
        return description;
    }
    bool IsEqual(std::shared_ptr<const Orlimo::IOLFormatNode> other) const override
    {
        comparedWith.push_back(std::move(other));
        return equal;
    }

    Node Parent() const override { return {}; }
    void SetParent(Node) override { }
    void SetFaceID(int) override { }
    void SetName(std::string) override { }
    void SetDescription(std::string) override { }
    Node Clone(int) const override { return {}; }
    std::shared_ptr<const Orlimo::IOLJsonValue> ToJsonValue() const override { return {}; }
    int PresetCount() const override { return 0; }
    Preset PresetAt(int) const override { return {}; }
    void AddPreset(Preset) override { }
    bool RemovePreset(std::string) override { return false; }
    Preset FindPreset(std::string) const override { return {}; }
    int ChildCount() const override { return 0; }
    Node ChildAt(int) const override { return {}; }
    Node ChildAt(int) override { return {}; }
    void AppendChild(Node) override { }
    void RemoveChild(std::string) override { }
    void RemoveChild(Node) override { }
    void RemoveChildAt(int) override { }
    Node FindChild(std::string) const override { return {}; }
};

// A preset that only has a name, counts who asks for it, and is equal to what its maker says.
class CountingPreset final : public Orlimo::IOLFormatPreset
{
    using Preset = std::shared_ptr<Orlimo::IOLFormatPreset>;
    using Codec = std::shared_ptr<Orlimo::IOLCodecPreset>;

public:
    std::string name;
    bool equal = true;

    mutable int nameCalls = 0;
    mutable std::vector<std::shared_ptr<const Orlimo::IOLFormatPreset>> comparedWith;

    std::string Name() const override
    {
        ++nameCalls;
        return name;
    }
    bool IsEqual(std::shared_ptr<const Orlimo::IOLFormatPreset> other) const override
    {
        comparedWith.push_back(std::move(other));
        return equal;
    }

    int FaceID() const override { return 0; }
    void SetFaceID(int) override { }
    void SetName(std::string) override { }
    std::string Description() const override { return {}; }
    std::string FormatName() const override { return {}; }
    Preset Clone() const override { return {}; }
    void CopySettingsFrom(Preset) override { }
    int VideoCodecCount() const override { return 0; }
    Codec VideoCodecAt(int) const override { return {}; }
    int CurrentVideoCodecIndex() const override { return -1; }
    void SetCurrentVideoCodecIndex(int) override { }
    int AudioCodecCount() const override { return 0; }
    Codec AudioCodecAt(int) const override { return {}; }
    int CurrentAudioCodecIndex() const override { return -1; }
    void SetCurrentAudioCodecIndex(int) override { }
};

} // namespace Test
