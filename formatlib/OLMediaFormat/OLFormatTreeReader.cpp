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

std::shared_ptr<OLFormatNode> OLFormatTreeReader::Read(const QJsonValue &document,
                                                       std::vector<OLJsonFault> &faults)
{
    const std::size_t before = faults.size();
    OLFormatTreeReader reader;
    reader.m_path.CollectInto(faults);
    std::shared_ptr<OLFormatNode> root;
    reader.m_path.Attempt([&] { root = reader.ReadDocument(document); });
    return faults.size() == before ? root : nullptr;
}

std::shared_ptr<OLFormatNode> OLFormatTreeReader::ReadDocument(const QJsonValue &document)
{
    OLJsonMembers members(m_path, QCborValue::fromJsonValue(document));
    m_tables.ReadTables(members);
    QCborValue root;
    const bool rooted = m_path.Attempt([&] { root = members.Required("root"_L1); });
    members.ExpectNoMore();
    if (!rooted)
        return nullptr;
    const OLJsonPath::Scope in(m_path, "root"_L1);
    return ReadNode(OLJsonMembers(m_path, root));
}

std::shared_ptr<OLFormatNode> OLFormatTreeReader::ReadNode(OLJsonMembers members)
{
    auto node = std::make_shared<OLFormatNode>();
    node->SetName(members.Text("name"_L1));
    node->SetDescription(members.TextOr("description"_L1, ""));
    node->SetFaceID(TakeFaceID(members));
    const QCborArray presets = members.Array("presets"_L1);
    const QCborArray children = members.Array("children"_L1);
    node->Reserve(static_cast<std::size_t>(presets.size()),
                  static_cast<std::size_t>(children.size()));
    members.ForEachElement("presets"_L1, presets, [&](QCborValueConstRef preset) {
        node->AddPreset(ReadPreset(OLJsonMembers(m_path, preset)));
    });
    members.ForEachElement("children"_L1, children, [&](QCborValueConstRef value) {
        auto child = ReadNode(OLJsonMembers(m_path, value));
        child->SetParent(node);
        node->AppendChild(std::move(child));
    });
    members.ExpectNoMore();
    return node;
}

std::shared_ptr<OLFormatPreset> OLFormatTreeReader::ReadPreset(OLJsonMembers members)
{
    const std::string name = members.Text("name"_L1);
    const std::string description = members.TextOr("description"_L1, "");
    const OLPresetTexts texts(name, description, members.TextOr("format"_L1, ""));
    const int faceID = TakeFaceID(members);
    OLCodecList video;
    OLCodecList audio;
    m_path.Attempt([&] { video = m_tables.ReadCodecList(members, OLEncoderKind::Video); });
    m_path.Attempt([&] { audio = m_tables.ReadCodecList(members, OLEncoderKind::Audio); });
    members.ExpectNoMore();
    return std::make_shared<OLFormatPreset>(texts, faceID, std::move(video), std::move(audio));
}

} // namespace Orlimo
