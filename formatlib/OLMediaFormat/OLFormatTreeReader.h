#pragma once

#include "OLCodecTableReader.h"
#include "OLJsonMembers.h"

#include <memory>
#include <vector>

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

    // Reads on behind a fault as far as what follows can be judged, and appends every one to
    // faults. Empty where there is any.
    static std::shared_ptr<OLFormatNode> Read(const QJsonValue &document,
                                              std::vector<OLJsonFault> &faults);

private:
    OLFormatTreeReader()
        : m_tables(m_path)
    {
    }

    std::shared_ptr<OLFormatNode> ReadDocument(const QJsonValue &document);
    std::shared_ptr<OLFormatNode> ReadNode(OLJsonMembers members);
    std::shared_ptr<OLFormatPreset> ReadPreset(OLJsonMembers members);

    OLJsonPath m_path;
    OLCodecTableReader m_tables;
};

} // namespace Orlimo
