#include "OLCodecTableWriter.h"

#include "OLOptionLayout.h"

#include <QJsonArray>

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;

template<class Option>
QJsonArray ToJson(const OLOptionList<Option> &list)
{
    QJsonArray array;
    for (const Option &option : list.options) {
        QJsonObject object { { u"text"_s, ToQString(option.text) } };
        OLOptionLayout<Option>::Write(option, object);
        array.append(object);
    }
    return array;
}

QJsonObject ToJson(const OLEncoderChoice &choice, const OLEncoder &encoder)
{
    QJsonObject object { { u"encoder"_s, choice.encoder } };
    OLForEachOptionType(encoder.kind, [&]<class Option>() {
        constexpr std::size_t slot = OLOptionSlot<Option>();
        if (choice.options[slot] != encoder.defaults[slot])
            object.insert(OLOptionLayout<Option>::index, choice.options[slot]);
    });
    return object;
}

QJsonArray ToJson(const std::vector<OLEncoderChoice> &choices, const OLEncoderSet &set)
{
    QJsonArray array;
    for (const OLEncoderChoice &choice : choices)
        array.append(ToJson(choice, *set.encoders[static_cast<std::size_t>(choice.encoder)]));
    return array;
}

} // namespace

void OLCodecTableWriter::Write(const OLCodecList &list, OLEncoderKind kind, QJsonObject &preset)
{
    if (!list.Set())
        return;
    QJsonObject object = CurrentEncoder(list.Set(), list.CurrentIndex());
    const QJsonArray choices = ToJson(list.Choices(), *list.Set());
    if (!choices.isEmpty())
        object.insert("choices"_L1, choices);
    preset.insert(OLKindName(kind), object);
}

const QJsonObject &OLCodecTableWriter::CurrentEncoder(const OLEncoderSetPointer &set, int current)
{
    const auto [known, isNew] = m_currentEncoders.try_emplace({ set, current });
    if (isNew)
        known->second = { { u"current"_s, current }, { u"encoders"_s, SetId(set) } };
    return known->second;
}

void OLCodecTableWriter::WriteTables(QJsonObject &document) const
{
    document.insert("version"_L1, 1);
    for (const auto &[name, tables] : m_document) {
        QJsonObject object;
        for (const auto &[id, table] : tables)
            object.insert(id, table);
        document.insert(name, object);
    }
}

QString OLCodecTableWriter::SetId(const OLEncoderSetPointer &set)
{
    return m_sets.IdOf(set, [&](const QString &id) {
        QJsonArray encoders;
        for (const OLEncoderPointer &encoder : set->encoders)
            encoders.append(EncoderId(encoder));
        m_document[u"encoderSets"_s].emplace(id, encoders);
    });
}

QString OLCodecTableWriter::EncoderId(const OLEncoderPointer &encoder)
{
    return m_encoders.IdOf(encoder, [&](const QString &id) {
        QJsonObject object { { u"kind"_s, OLKindName(encoder->kind) },
                             { u"name"_s, ToQString(encoder->name) } };
        if (encoder->automatic)
            object.insert("auto"_L1, true);
        OLForEachOptionType(encoder->kind,
                            [&]<class Option>() { WriteOptionList<Option>(*encoder, object); });
        m_document[u"encoders"_s].emplace(id, object);
    });
}

template<class Option>
void OLCodecTableWriter::WriteOptionList(const OLEncoder &encoder, QJsonObject &object)
{
    const OLOptionListPointer<Option> &list = encoder.List<Option>();
    if (!list)
        return;
    object.insert(OLOptionLayout<Option>::lists, OptionListId<Option>(list));
    object.insert(OLOptionLayout<Option>::index, encoder.defaults[OLOptionSlot<Option>()]);
}

template<class Option>
QString OLCodecTableWriter::OptionListId(const OLOptionListPointer<Option> &list)
{
    auto &registry = std::get<OLTableRegistry<OLOptionList<Option>>>(m_lists);
    return registry.IdOf(list, [&](const QString &id) {
        m_document[QString(OLOptionLayout<Option>::lists)].emplace(id, ToJson(*list));
    });
}

} // namespace Orlimo
