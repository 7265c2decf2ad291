#pragma once

#include "OLCodecTableWriter.h"

#include <memory>

namespace Orlimo {

class IOLFormatNode;
class IOLFormatPreset;
class IOLJsonValue;

// Writes a format tree, in the layout that docs/format-tree.md gives.
class OLFormatTreeWriter
{
public:
    static std::shared_ptr<const IOLJsonValue> Write(const IOLFormatNode &root);

private:
    QJsonObject WriteNode(const IOLFormatNode &node);
    QJsonObject WritePreset(const IOLFormatPreset &preset);

    OLCodecTableWriter m_tables;
};

} // namespace Orlimo
