#pragma once

#include "OLCodecList.h"

#include <map>
#include <string>

class QJsonValue;

namespace Orlimo {

// The encoders that are usual in each well-known container format, from the table that the library
// carries in itself.
class OLUsualEncoders
{
public:
    struct Entry
    {
        OLCodecList video;
        OLCodecList audio;
    };

    // Reads the table on the first call, on any thread.
    static const OLUsualEncoders &Shared();

    // The entry of a format name in any letter case, or the entry for unknown formats.
    const Entry &Of(const std::string &formatName) const;

private:
    OLUsualEncoders();

    void Read(const QJsonValue &document);

    std::map<std::string, Entry> m_formats; // by lower-case name
    Entry m_fallback;
};

} // namespace Orlimo
