#include "OLPresetTexts.h"

namespace Orlimo {

OLPresetTexts::OLPresetTexts(std::string_view name, std::string_view description,
                             std::string_view formatName)
{
    Append(name);
    m_nameEnd = m_bytes.size();
    Append(description);
    m_descriptionEnd = m_bytes.size();
    Append(formatName);
}

void OLPresetTexts::SetName(std::string_view name)
{
    const OLPresetTexts changed(name, Description(), FormatName());
    m_bytes.reserve(changed.m_bytes.size()); // where memory runs out, nothing has changed
    *this = changed;
}

void OLPresetTexts::Append(std::string_view text)
{
    m_bytes.append(text.data(), static_cast<qsizetype>(text.size()));
}

std::string_view OLPresetTexts::Between(qsizetype begin, qsizetype end) const
{
    return { m_bytes.data() + begin, static_cast<std::size_t>(end - begin) };
}

} // namespace Orlimo
