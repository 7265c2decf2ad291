#include "OLFormatNode.h"

#include "IOLFormatPreset.h"
#include "OLFormatTreeWriter.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Orlimo {

namespace {

template<class Object>
std::shared_ptr<Object> At(const std::vector<std::shared_ptr<Object>> &objects, int index)
{
    const bool inside = index >= 0 && static_cast<std::size_t>(index) < objects.size();
    return inside ? objects[static_cast<std::size_t>(index)] : nullptr;
}

template<class Objects>
auto FindByName(Objects &objects, const std::string &name)
{
    return std::ranges::find_if(objects,
                                [&](const auto &object) { return object->Name() == name; });
}

template<class Object>
std::shared_ptr<Object> ByName(const std::vector<std::shared_ptr<Object>> &objects,
                               const std::string &name)
{
    const auto found = FindByName(objects, name);
    return found != objects.end() ? *found : nullptr;
}

template<class Objects, class Iterator>
bool EraseAt(Objects &objects, Iterator place)
{
    if (place == objects.end())
        return false;
    objects.erase(place);
    return true;
}

} // namespace

// Takes the subtree apart level by level, so that a deep tree does not need a deep stack.
OLFormatNode::~OLFormatNode()
{
    auto doomed = std::move(m_children);
    while (!doomed.empty()) {
        const std::shared_ptr<IOLFormatNode> node = std::move(doomed.back());
        doomed.pop_back();
        auto *last = node.use_count() == 1 ? dynamic_cast<OLFormatNode *>(node.get()) : nullptr;
        if (last)
            std::ranges::move(std::exchange(last->m_children, {}), std::back_inserter(doomed));
    }
}

void OLFormatNode::Reserve(std::size_t presets, std::size_t children)
{
    m_presets.reserve(presets);
    m_children.reserve(children);
}

std::shared_ptr<IOLFormatNode> OLFormatNode::Parent() const
{
    return m_parent.lock();
}

void OLFormatNode::SetParent(std::shared_ptr<IOLFormatNode> parent)
{
    m_parent = parent;
}

int OLFormatNode::FaceID() const
{
    return m_faceID;
}

void OLFormatNode::SetFaceID(int faceID)
{
    m_faceID = faceID;
}

std::string OLFormatNode::Name() const
{
    return m_name;
}

std::string OLFormatNode::Description() const
{
    return m_description;
}

void OLFormatNode::SetName(std::string name)
{
    m_name = std::move(name);
}

void OLFormatNode::SetDescription(std::string description)
{
    m_description = std::move(description);
}

std::shared_ptr<IOLFormatNode> OLFormatNode::Clone(int flags) const
{
    const auto copy = CloneAttributes();
    if (flags == CloneAll)
        CloneContentsInto(copy);
    return copy;
}

std::shared_ptr<OLFormatNode> OLFormatNode::CloneAttributes() const
{
    auto copy = std::make_shared<OLFormatNode>();
    copy->m_name = m_name;
    copy->m_description = m_description;
    copy->m_faceID = m_faceID;
    return copy;
}

void OLFormatNode::CloneContentsInto(const std::shared_ptr<OLFormatNode> &copy) const
{
    copy->Reserve(m_presets.size(), m_children.size());
    for (const auto &preset : m_presets)
        copy->m_presets.push_back(preset->Clone());
    for (const auto &child : m_children) {
        auto childCopy = child->Clone(CloneAll);
        childCopy->SetParent(copy);
        copy->m_children.push_back(std::move(childCopy));
    }
}

std::shared_ptr<const IOLJsonValue> OLFormatNode::ToJsonValue() const
{
    return OLFormatTreeWriter::Write(*this);
}

int OLFormatNode::PresetCount() const
{
    return static_cast<int>(m_presets.size());
}

std::shared_ptr<IOLFormatPreset> OLFormatNode::PresetAt(int index) const
{
    return At(m_presets, index);
}

void OLFormatNode::AddPreset(std::shared_ptr<IOLFormatPreset> preset)
{
    if (preset)
        m_presets.push_back(std::move(preset));
}

bool OLFormatNode::RemovePreset(std::string name)
{
    return EraseAt(m_presets, FindByName(m_presets, name));
}

std::shared_ptr<IOLFormatPreset> OLFormatNode::FindPreset(std::string name) const
{
    return ByName(m_presets, name);
}

int OLFormatNode::ChildCount() const
{
    return static_cast<int>(m_children.size());
}

std::shared_ptr<IOLFormatNode> OLFormatNode::ChildAt(int index) const
{
    return At(m_children, index);
}

std::shared_ptr<IOLFormatNode> OLFormatNode::ChildAt(int index)
{
    return At(m_children, index);
}

void OLFormatNode::AppendChild(std::shared_ptr<IOLFormatNode> child)
{
    if (child && child.get() != this)
        m_children.push_back(std::move(child));
}

void OLFormatNode::RemoveChild(std::string name)
{
    EraseAt(m_children, FindByName(m_children, name));
}

void OLFormatNode::RemoveChild(std::shared_ptr<IOLFormatNode> child)
{
    EraseAt(m_children, std::ranges::find(m_children, child));
}

void OLFormatNode::RemoveChildAt(int index)
{
    if (index >= 0 && index < ChildCount())
        m_children.erase(m_children.begin() + index);
}

std::shared_ptr<IOLFormatNode> OLFormatNode::FindChild(std::string name) const
{
    return ByName(m_children, name);
}

bool OLFormatNode::IsEqual(std::shared_ptr<const IOLFormatNode> other) const
{
    return other && m_faceID == other->FaceID() && m_name == other->Name()
            && m_description == other->Description();
}

} // namespace Orlimo
