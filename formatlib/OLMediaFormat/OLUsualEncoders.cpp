#include "OLUsualEncoders.h"

#include "IOLStringHelper.h"
#include "OLCodecTableReader.h"
#include "OLJsonMembers.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;

QJsonValue ReadTable()
{
    QFile file(u":/OLMediaFormat/usual_encoders.json"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

OLUsualEncoders::Entry ReadEntry(OLCodecTableReader &tables, OLJsonPath &path,
                                 const QCborValue &value)
{
    OLJsonMembers members(path, value);
    OLUsualEncoders::Entry entry { tables.ReadCodecList(members, OLEncoderKind::Video),
                                   tables.ReadCodecList(members, OLEncoderKind::Audio) };
    members.ExpectNoMore();
    return entry;
}

} // namespace

const OLUsualEncoders &OLUsualEncoders::Shared()
{
    static const OLUsualEncoders table;
    return table;
}

// A table that cannot be read, as when the library's resources are gone, gives no encoders.
OLUsualEncoders::OLUsualEncoders()
{
    try {
        Read(ReadTable());
    } catch (const OLJsonFault &) {
        m_formats.clear();
        m_fallback = {};
    }
}

void OLUsualEncoders::Read(const QJsonValue &document)
{
    OLJsonPath path;
    OLJsonMembers members(path, QCborValue::fromJsonValue(document));
    OLCodecTableReader tables(path);
    tables.ReadTables(members);
    members.ForEach("formats"_L1, [&](const std::string &name, const QCborValue &value) {
        m_formats.emplace(IOLStringHelper::ToLower(name), ReadEntry(tables, path, value));
    });
    m_fallback = ReadEntry(tables, path, members.Required("fallback"_L1));
    members.ExpectNoMore();
}

const OLUsualEncoders::Entry &OLUsualEncoders::Of(const std::string &formatName) const
{
    const auto found = m_formats.find(IOLStringHelper::ToLower(formatName));
    return found != m_formats.end() ? found->second : m_fallback;
}

} // namespace Orlimo
