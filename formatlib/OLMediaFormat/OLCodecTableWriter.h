#pragma once

#include "OLCodecList.h"
#include "OLText.h"

#include <QJsonObject>
#include <QString>

#include <map>
#include <tuple>

namespace Orlimo {

// The tables of one kind that a document needs, each once and under an id of its own.
template<class Table>
class OLTableRegistry
{
public:
    using Pointer = std::shared_ptr<const Table>;

    // The id under which the document holds a table that says the same as table. Where it does not
    // yet, describe(id) is called to add it.
    template<class Describe>
    QString IdOf(const Pointer &table, Describe describe)
    {
        if (const auto known = m_ids.find(table); known != m_ids.end())
            return known->second;
        const QString wanted = ToQString(table->id);
        QString id = wanted;
        for (int number = 2; Taken(id, *table); ++number)
            id = wanted + u'-' + QString::number(number);
        m_ids.emplace(table, id);
        if (m_tables.emplace(id, table).second)
            describe(id);
        return id;
    }

private:
    bool Taken(const QString &id, const Table &table) const
    {
        const auto holder = m_tables.find(id);
        return holder != m_tables.end() && !SameContent(*holder->second, table);
    }

    std::map<Pointer, QString> m_ids;
    std::map<QString, Pointer> m_tables;
};

// Writes the encoder choices of presets and gathers the tables that they refer to.
class OLCodecTableWriter
{
public:
    // Adds the encoder choices to preset, unless there are none.
    void Write(const OLCodecList &list, OLEncoderKind kind, QJsonObject &preset);

    // Adds "version" and the gathered tables to document.
    void WriteTables(QJsonObject &document) const;

private:
    QString SetId(const OLEncoderSetPointer &set);
    QString EncoderId(const OLEncoderPointer &encoder);
    template<class Option>
    QString OptionListId(const OLOptionListPointer<Option> &list);
    template<class Option>
    void WriteOptionList(const OLEncoder &encoder, QJsonObject &object);

    std::tuple<OLTableRegistry<OLOptionList<OLResolution>>,
               OLTableRegistry<OLOptionList<OLFrameRate>>, OLTableRegistry<OLOptionList<OLQuality>>,
               OLTableRegistry<OLOptionList<OLChannel>>,
               OLTableRegistry<OLOptionList<OLSampleRate>>>
            m_lists;
    OLTableRegistry<OLEncoder> m_encoders;
    OLTableRegistry<OLEncoderSet> m_sets;
    std::map<QString, QJsonObject> m_document; // by the name of the table's member
};

} // namespace Orlimo
