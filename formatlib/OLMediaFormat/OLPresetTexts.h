#pragma once

#include <QVarLengthArray>

#include <string_view>

namespace Orlimo {

// The texts of one preset, one after the other and, unless they are long, inside the object: a
// search reads those of every preset, and would otherwise fetch each from wherever the parser of
// the description has left a gap.
class OLPresetTexts
{
public:
    OLPresetTexts(std::string_view name, std::string_view description, std::string_view formatName);

    // A moved object would lose its bytes, but not their places.
    OLPresetTexts(const OLPresetTexts &) = default;
    OLPresetTexts &operator=(const OLPresetTexts &) = default;
    ~OLPresetTexts() = default;

    // The views are valid until the texts are changed.
    std::string_view Name() const { return Between(0, m_nameEnd); }
    std::string_view Description() const { return Between(m_nameEnd, m_descriptionEnd); }
    std::string_view FormatName() const { return Between(m_descriptionEnd, m_bytes.size()); }

    void SetName(std::string_view name);

private:
    void Append(std::string_view text);
    std::string_view Between(qsizetype begin, qsizetype end) const;

    QVarLengthArray<char, 64> m_bytes; // UTF-8
    qsizetype m_nameEnd;
    qsizetype m_descriptionEnd;
};

} // namespace Orlimo
