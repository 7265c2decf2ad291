#include "OLFmtPresetRecentItem.h"

#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <utility>

namespace Orlimo {

namespace {

template<class Object>
bool AreEqual(const std::shared_ptr<const Object> &object,
              const std::shared_ptr<const Object> &other)
{
    return object ? object->IsEqual(other) : !other;
}

} // namespace

OLFmtPresetRecentItem::OLFmtPresetRecentItem(std::shared_ptr<const IOLFormatPreset> preset,
                                             std::shared_ptr<const IOLFormatNode> node)
    : m_node(std::move(node))
    , m_preset(std::move(preset))
{
}

std::shared_ptr<const IOLFormatNode> OLFmtPresetRecentItem::GetFormatNode() const
{
    return m_node;
}

std::shared_ptr<const IOLFormatPreset> OLFmtPresetRecentItem::GetFormatPreset() const
{
    return m_preset;
}

std::string OLFmtPresetRecentItem::GetDisplayName() const
{
    if (!m_preset)
        return {};
    std::string nodeName = m_node ? m_node->Name() : std::string();
    std::string presetName = m_preset->Name();
    if (presetName.find(nodeName) != std::string::npos)
        return presetName;
    nodeName.reserve(nodeName.size() + 1 + presetName.size());
    nodeName.append(" ").append(presetName);
    return nodeName;
}

std::string OLFmtPresetRecentItem::GetDescription() const
{
    return !m_preset || !m_node ? std::string() : m_node->Description();
}

int OLFmtPresetRecentItem::GetFaceID() const
{
    return !m_preset || !m_node ? 0 : m_node->FaceID();
}

std::shared_ptr<IOLFmtPresetRecentItem> OLFmtPresetRecentItem::Clone() const
{
    return MallocFmtPresetRecentItem(m_preset, m_node);
}

bool OLFmtPresetRecentItem::IsEqual(std::shared_ptr<IOLFmtPresetRecentItem> other) const
{
    return GetFaceID() == other->GetFaceID() && GetDescription() == other->GetDescription()
            && GetDisplayName() == other->GetDisplayName()
            && AreEqual(m_node, other->GetFormatNode())
            && AreEqual(m_preset, other->GetFormatPreset());
}

} // namespace Orlimo
