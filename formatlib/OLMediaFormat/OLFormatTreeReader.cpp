#include "OLFormatTreeReader.h"

#include "IOLError.h"
#include "OLFormatNode.h"
#include "OLFormatPreset.h"

#include <limits>
#include <utility>

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;

int TakeFaceID(OLJsonMembers &members)
{
    using Limits = std::numeric_limits<int>;
    return members.IntegerOr("faceId"_L1, 0, Limits::min(), Limits::max());
}

} // namespace

std::shared_ptr<OLFormatNode> OLFormatTreeReader::Read(const QJsonValue &document,
                                                       std::shared_ptr<const IOLError> *error)
{
    try {
        return OLFormatTreeReader().ReadDocument(document);
    } catch (const OLJsonFault &fault) {
        if (error)
            *error = IOLError::MallocError({}, fault.pointer, fault.reason);
        return nullptr;
    }
}

std::shared_ptr<OLFormatNode> OLFormatTreeReader::ReadDocument(const QJsonValue &document)
{
    OLJsonMembers members(m_path, document);
    m_tables.ReadTables(members);
    const QJsonValue root = members.Required("root"_L1);
    members.ExpectNoMore();
    const OLJsonPath::Scope in(m_path, u"root"_s);
    return ReadNode(root);
}

std::shared_ptr<OLFormatNode> OLFormatTreeReader::ReadNode(const QJsonValue &value)
{
    OLJsonMembers members(m_path, value);
    auto node = std::make_shared<OLFormatNode>();
    node->SetName(members.Text("name"_L1));
    node->SetDescription(members.TextOr("description"_L1, ""));
    node->SetFaceID(TakeFaceID(members));
    members.ForEachElement("presets"_L1,
                           [&](const QJsonValue &preset) { node->AddPreset(ReadPreset(preset)); });
    members.ForEachElement("children"_L1, [&](const QJsonValue &childValue) {
        auto child = ReadNode(childValue);
        child->SetParent(node);
        node->AppendChild(std::move(child));
    });
    members.ExpectNoMore();
    return node;
}

std::shared_ptr<OLFormatPreset> OLFormatTreeReader::ReadPreset(const QJsonValue &value)
{
    OLJsonMembers members(m_path, value);
    OLFormatPreset::Texts texts { members.Text("name"_L1), members.TextOr("description"_L1, ""),
                                  members.TextOr("format"_L1, "") };
    const int faceID = TakeFaceID(members);
    auto preset = std::make_shared<OLFormatPreset>(std::move(texts), faceID,
                                                   m_tables.ReadCodecList(members,
                                                                          OLEncoderKind::Video),
                                                   m_tables.ReadCodecList(members,
                                                                          OLEncoderKind::Audio));
    members.ExpectNoMore();
    return preset;
}

} // namespace Orlimo
