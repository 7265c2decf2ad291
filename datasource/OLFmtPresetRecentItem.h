#pragma once

#include "IOLFmtPresetRecentItem.h"

namespace Orlimo {

class OLFmtPresetRecentItem final : public IOLFmtPresetRecentItem
{
public:
    OLFmtPresetRecentItem(std::shared_ptr<const IOLFormatPreset> preset,
                          std::shared_ptr<const IOLFormatNode> node);

    std::shared_ptr<const IOLFormatNode> GetFormatNode() const override;
    std::shared_ptr<const IOLFormatPreset> GetFormatPreset() const override;
    std::string GetDisplayName() const override;
    std::string GetDescription() const override;
    int GetFaceID() const override;
    std::shared_ptr<IOLFmtPresetRecentItem> Clone() const override;
    bool IsEqual(std::shared_ptr<IOLFmtPresetRecentItem> other) const override;

private:
    std::shared_ptr<const IOLFormatNode> m_node;
    std::shared_ptr<const IOLFormatPreset> m_preset;
};

} // namespace Orlimo
