#pragma once

#include "OLCodecList.h"

#include <QCborValue>
#include <QLatin1StringView>
#include <QVarLengthArray>

#include <array>
#include <map>
#include <string>
#include <tuple>

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
    OLCodecList ReadCodecList(OLJsonMembers &owner, OLEncoderKind kind);

private:
    using Choices = QVarLengthArray<OLEncoderChoice, 8>;

    // The set that was taken last, which most presets have in common with the one before.
    struct LatestSet
    {
        QCborValue id;
        OLEncoderSetPointer set;
    };

    template<class Option>
    using ListsById = std::map<std::string, OLOptionListPointer<Option>>;

    template<class Option>
    void ReadOptionLists(OLJsonMembers &document);
    template<class Option>
    bool TakeOptionList(OLJsonMembers &members, OLEncoder &encoder) const;

    OLEncoderPointer ReadEncoder(std::string id, OLJsonMembers members) const;
    OLEncoderSetPointer ReadEncoderSet(std::string id, const QCborValue &value) const;
    OLEncoderPointer EncoderOf(const QCborValue &id, const OLEncoderPointer &other) const;
    OLEncoderSetPointer TakeSet(OLJsonMembers &members, OLEncoderKind kind);
    Choices ReadChoices(OLJsonMembers &members, const OLEncoderSet *set, OLEncoderKind kind) const;
    OLEncoderChoice ReadChoice(OLJsonMembers members, const OLEncoderSet *set,
                               OLEncoderKind kind) const;

    OLJsonPath &m_path;
    std::tuple<ListsById<OLResolution>, ListsById<OLFrameRate>, ListsById<OLQuality>,
               ListsById<OLChannel>, ListsById<OLSampleRate>>
            m_lists;
    std::map<std::string, OLEncoderPointer> m_encoders;
    std::map<std::string, OLEncoderSetPointer> m_sets;
    std::array<LatestSet, 2> m_latestSets; // one of each kind
};

} // namespace Orlimo
