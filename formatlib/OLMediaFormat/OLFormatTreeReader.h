#pragma once

#include "OLCodecTableReader.h"
#include "OLJsonMembers.h"

#include <memory>

class QJsonValue;

namespace Orlimo {

class IOLError;
class OLFormatNode;
class OLFormatPreset;

// Reads a format tree, in the layout that docs/format-tree.md gives.
class OLFormatTreeReader
{
public:
    // Empty where the document breaks the layout; then error, where it is not null, says how.
    static std::shared_ptr<OLFormatNode> Read(const QJsonValue &document,
                                              std::shared_ptr<const IOLError> *error);

private:
    OLFormatTreeReader()
        : m_tables(m_path)
    {
    }

    std::shared_ptr<OLFormatNode> ReadDocument(const QJsonValue &document);
    std::shared_ptr<OLFormatNode> ReadNode(const QJsonValue &value);
    std::shared_ptr<OLFormatPreset> ReadPreset(const QJsonValue &value);

    OLJsonPath m_path;
    OLCodecTableReader m_tables;
};

} // namespace Orlimo
