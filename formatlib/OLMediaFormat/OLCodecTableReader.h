#pragma once

#include "OLCodecList.h"

#include <QLatin1StringView>
#include <QVarLengthArray>

#include <map>
#include <string>
#include <tuple>

class QJsonValue;

namespace Orlimo {

class OLJsonMembers;
class OLJsonPath;

// Reads the tables of a document and the encoder choices that refer to them. Throws OLJsonFault.
//
// Where the path collects faults, an encoder or a set that could not be read whole stands empty
// under its id: what refers to it is known to be there, but not checked against it.
class OLCodecTableReader
{
public:
    explicit OLCodecTableReader(OLJsonPath &path)
        : m_path(path)
    {
    }

    // Takes "version" and the option lists, encoders and encoder sets out of document.
    void ReadTables(OLJsonMembers &document);

    // Takes the encoder choices of the given kind out of owner; absent ones give an empty list.
    OLCodecList ReadCodecList(OLJsonMembers &owner, OLEncoderKind kind) const;

private:
    using Choices = QVarLengthArray<OLEncoderChoice, 8>;

    template<class Option>
    using ListsById = std::map<std::string, OLOptionListPointer<Option>>;

    template<class Option>
    void ReadOptionLists(OLJsonMembers &document);
    template<class Option>
    bool TakeOptionList(OLJsonMembers &members, OLEncoder &encoder) const;

    OLEncoderPointer ReadEncoder(std::string id, OLJsonMembers members) const;
    OLEncoderSetPointer ReadEncoderSet(std::string id, const QJsonValue &value) const;
    OLEncoderPointer EncoderOf(const QJsonValue &id, const OLEncoderPointer &other) const;
    OLEncoderSetPointer TakeSet(OLJsonMembers &members, OLEncoderKind kind) const;
    Choices ReadChoices(OLJsonMembers &members, const OLEncoderSet *set, OLEncoderKind kind) const;
    OLEncoderChoice ReadChoice(OLJsonMembers members, const OLEncoderSet *set,
                               OLEncoderKind kind) const;

    OLJsonPath &m_path;
    std::tuple<ListsById<OLResolution>, ListsById<OLFrameRate>, ListsById<OLQuality>,
               ListsById<OLChannel>, ListsById<OLSampleRate>>
            m_lists;
    std::map<std::string, OLEncoderPointer> m_encoders;
    std::map<std::string, OLEncoderSetPointer> m_sets;
};

} // namespace Orlimo
