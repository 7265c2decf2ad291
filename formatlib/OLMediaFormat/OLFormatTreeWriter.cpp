#include "OLFormatTreeWriter.h"

#include "IOLFormatNode.h"
#include "IOLJsonValue.h"
#include "OLFormatPreset.h"

#include <QJsonArray>

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;

void InsertText(QJsonObject &object, QLatin1StringView name, const std::string &text)
{
    if (!text.empty())
        object.insert(name, ToQString(text));
}

void InsertFaceID(QJsonObject &object, int faceID)
{
    if (faceID != 0)
        object.insert("faceId"_L1, faceID);
}

void InsertArray(QJsonObject &object, QLatin1StringView name, const QJsonArray &array)
{
    if (!array.isEmpty())
        object.insert(name, array);
}

} // namespace

std::shared_ptr<const IOLJsonValue> OLFormatTreeWriter::Write(const IOLFormatNode &root)
{
    OLFormatTreeWriter writer;
    QJsonObject document { { u"root"_s, writer.WriteNode(root) } };
    writer.m_tables.WriteTables(document);
    return IOLJsonValue::MallocJsonValue(document);
}

QJsonObject OLFormatTreeWriter::WriteNode(const IOLFormatNode &node)
{
    QJsonObject object { { u"name"_s, ToQString(node.Name()) } };
    InsertText(object, "description"_L1, node.Description());
    InsertFaceID(object, node.FaceID());

    QJsonArray presets;
    for (int i = 0; i < node.PresetCount(); ++i)
        presets.append(WritePreset(*node.PresetAt(i)));
    InsertArray(object, "presets"_L1, presets);

    QJsonArray children;
    for (int i = 0; i < node.ChildCount(); ++i)
        children.append(WriteNode(*node.ChildAt(i)));
    InsertArray(object, "children"_L1, children);
    return object;
}

QJsonObject OLFormatTreeWriter::WritePreset(const IOLFormatPreset &preset)
{
    QJsonObject object { { u"name"_s, ToQString(preset.Name()) } };
    InsertText(object, "description"_L1, preset.Description());
    InsertText(object, "format"_L1, preset.FormatName());
    InsertFaceID(object, preset.FaceID());
    if (const auto *ours = dynamic_cast<const OLFormatPreset *>(&preset)) {
        m_tables.Write(ours->Video(), OLEncoderKind::Video, object);
        m_tables.Write(ours->Audio(), OLEncoderKind::Audio, object);
    }
    return object;
}

} // namespace Orlimo
