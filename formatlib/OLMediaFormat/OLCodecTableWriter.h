#pragma once

#include "OLCodecList.h"
#include "OLTableComparison.h"
#include "OLText.h"

#include <QJsonObject>
#include <QString>

#include <map>
#include <tuple>
#include <utility>

namespace Orlimo {

// The tables of one kind that a document needs, each once and under an id of its own.
template<class Table>
class OLTableRegistry
{
public:
    using Pointer = std::shared_ptr<const Table>;

    explicit OLTableRegistry(OLTableComparison &comparison)
        : m_comparison(comparison)
    {
    }

    // The id under which the document holds a table that says the same as table. Where it does not
    // yet, describe(id) is called to add it.
    template<class Describe>
    QString IdOf(const Pointer &table, Describe describe)
    {
        if (const auto known = m_ids.find(table); known != m_ids.end())
            return known->second;
        const QString wanted = ToQString(table->id);
        QString id = wanted;
        for (int number = 2; Taken(id, table); ++number)
            id = wanted + u'-' + QString::number(number);
        m_ids.emplace(table, id);
        if (m_tables.emplace(id, table).second)
            describe(id);
        return id;
    }

private:
    bool Taken(const QString &id, const Pointer &table) const
    {
        const auto holder = m_tables.find(id);
        return holder != m_tables.end() && !m_comparison.SaySame(holder->second, table);
    }

    OLTableComparison &m_comparison;
    std::map<Pointer, QString> m_ids;
    std::map<QString, Pointer> m_tables;
};

// Writes the encoder choices of presets and gathers the tables that they refer to.
class OLCodecTableWriter
{
public:
    OLCodecTableWriter() = default;
    OLCodecTableWriter(const OLCodecTableWriter &) = delete;
    OLCodecTableWriter &operator=(const OLCodecTableWriter &) = delete;
    ~OLCodecTableWriter() = default;

    // Adds the encoder choices to preset, unless there are none.
    void Write(const OLCodecList &list, OLEncoderKind kind, QJsonObject &preset);

    // Adds "version" and the gathered tables to document.
    void WriteTables(QJsonObject &document) const;

private:
    // Made once for all presets, which mostly have the same.
    const QJsonObject &CurrentEncoder(const OLEncoderSetPointer &set, int current);
    QString SetId(const OLEncoderSetPointer &set);
    QString EncoderId(const OLEncoderPointer &encoder);
    template<class Option>
    QString OptionListId(const OLOptionListPointer<Option> &list);
    template<class Option>
    void WriteOptionList(const OLEncoder &encoder, QJsonObject &object);

    // Ordered as QJsonObject orders its members: an object that is filled in this order does not
    // move what it holds already.
    using Members = std::map<QString, QJsonValue>;

    OLTableComparison m_comparison;
    std::tuple<OLTableRegistry<OLOptionList<OLResolution>>,
               OLTableRegistry<OLOptionList<OLFrameRate>>, OLTableRegistry<OLOptionList<OLQuality>>,
               OLTableRegistry<OLOptionList<OLChannel>>,
               OLTableRegistry<OLOptionList<OLSampleRate>>>
            m_lists { m_comparison, m_comparison, m_comparison, m_comparison, m_comparison };
    OLTableRegistry<OLEncoder> m_encoders { m_comparison };
    OLTableRegistry<OLEncoderSet> m_sets { m_comparison };
    std::map<std::pair<OLEncoderSetPointer, int>, QJsonObject> m_currentEncoders;
    std::map<QString, Members> m_document; // by the name of the table's member
};

} // namespace Orlimo
