#include "OLCodecTableReader.h"

#include "OLOptionLayout.h"

#include <algorithm>
#include <utility>

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;

template<class Option>
OLOptionListPointer<Option> ReadOptionList(std::string id, OLJsonPath &path,
                                           const QJsonValue &value)
{
    if (!value.isArray())
        path.Fail("an array of options is expected");
    auto list = std::make_shared<OLOptionList<Option>>();
    list->id = std::move(id);
    const QJsonArray array = value.toArray();
    for (qsizetype i = 0; i < array.size(); ++i) {
        const OLJsonPath::Scope at(path, i);
        OLJsonMembers members(path, array.at(i));
        Option option;
        option.text = members.Text("text"_L1);
        OLOptionLayout<Option>::Read(members, option);
        members.ExpectNoMore();
        list->options.push_back(std::move(option));
    }
    return list;
}

template<class Table>
const std::shared_ptr<const Table> &Resolve(
        const std::map<std::string, std::shared_ptr<const Table>> &tables, const std::string &id,
        const OLJsonPath &path)
{
    const auto found = tables.find(id);
    if (found == tables.end())
        path.Fail("there is no table called \"" + id + "\"");
    return found->second;
}

template<class Table>
const std::shared_ptr<const Table> &TakeReference(
        const std::map<std::string, std::shared_ptr<const Table>> &tables, OLJsonMembers &members,
        QLatin1StringView name)
{
    const std::string id = members.Text(name);
    const OLJsonPath::Scope at(members.Path(), QString(name));
    return Resolve(tables, id, members.Path());
}

// Takes the index called name, which is inside a list of count entries or −1.
int TakeIndex(OLJsonMembers &members, QLatin1StringView name, int otherwise, int count)
{
    return members.IntegerOr(name, otherwise, -1, count - 1);
}

OLEncoderKind TakeKind(OLJsonMembers &members)
{
    const std::string kind = members.Text("kind"_L1);
    if (kind != "video" && kind != "audio")
        members.Path().FailAt("kind"_L1, "\"video\" or \"audio\" is expected");
    return kind == "video" ? OLEncoderKind::Video : OLEncoderKind::Audio;
}

} // namespace

void OLCodecTableReader::ReadTables(OLJsonMembers &document)
{
    document.Integer("version"_L1, 1, 1);
    ReadOptionLists<OLResolution>(document);
    ReadOptionLists<OLFrameRate>(document);
    ReadOptionLists<OLQuality>(document);
    ReadOptionLists<OLChannel>(document);
    ReadOptionLists<OLSampleRate>(document);
    document.ForEach("encoders"_L1, [this](const QString &id, const QJsonValue &value) {
        m_encoders.emplace(id.toStdString(),
                           ReadEncoder(id.toStdString(), OLJsonMembers(m_path, value)));
    });
    document.ForEach("encoderSets"_L1, [this](const QString &id, const QJsonValue &value) {
        m_sets.emplace(id.toStdString(), ReadEncoderSet(id.toStdString(), value));
    });
}

template<class Option>
void OLCodecTableReader::ReadOptionLists(OLJsonMembers &document)
{
    auto &lists = std::get<ListsById<Option>>(m_lists);
    document.ForEach(OLOptionLayout<Option>::lists,
                     [&](const QString &id, const QJsonValue &value) {
                         lists.emplace(id.toStdString(),
                                       ReadOptionList<Option>(id.toStdString(), m_path, value));
                     });
}

OLEncoderPointer OLCodecTableReader::ReadEncoder(std::string id, OLJsonMembers members) const
{
    auto encoder = std::make_shared<OLEncoder>();
    encoder->id = std::move(id);
    encoder->kind = TakeKind(members);
    encoder->name = members.Text("name"_L1);
    encoder->automatic = members.FlagOr("auto"_L1, false);
    if (!encoder->automatic) {
        OLForEachOptionType(encoder->kind,
                            [&]<class Option>() { TakeOptionList<Option>(members, *encoder); });
    }
    members.ExpectNoMore();
    return encoder;
}

template<class Option>
void OLCodecTableReader::TakeOptionList(OLJsonMembers &members, OLEncoder &encoder) const
{
    using Layout = OLOptionLayout<Option>;
    if (members.Has(Layout::lists)) {
        std::get<OLOptionListPointer<Option>>(
                encoder.lists) = TakeReference(std::get<ListsById<Option>>(m_lists), members,
                                               Layout::lists);
    }
    const int count = encoder.OptionCount<Option>();
    encoder.defaults[OLOptionSlot<Option>()] = TakeIndex(members, Layout::index, count > 0 ? 0 : -1,
                                                         count);
}

OLEncoderSetPointer OLCodecTableReader::ReadEncoderSet(std::string id,
                                                       const QJsonValue &value) const
{
    if (!value.isArray())
        m_path.Fail("an array of encoder ids is expected");
    auto set = std::make_shared<OLEncoderSet>();
    set->id = std::move(id);
    const QJsonArray array = value.toArray();
    for (qsizetype i = 0; i < array.size(); ++i) {
        const OLJsonPath::Scope at(m_path, i);
        if (!array.at(i).isString())
            m_path.Fail("the id of an encoder is expected");
        set->encoders.push_back(Resolve(m_encoders, array.at(i).toString().toStdString(), m_path));
        if (set->encoders.back()->kind != set->encoders.front()->kind)
            m_path.Fail("an encoder set is of one kind");
    }
    if (!set->encoders.empty())
        set->kind = set->encoders.front()->kind;
    return set;
}

OLCodecList OLCodecTableReader::ReadCodecList(OLJsonMembers &owner, OLEncoderKind kind) const
{
    const QJsonValue value = owner.Optional(OLKindName(kind));
    if (value.isUndefined())
        return {};
    const OLJsonPath::Scope in(m_path, QString(OLKindName(kind)));
    OLJsonMembers members(m_path, value);
    const OLEncoderSetPointer &set = TakeReference(m_sets, members, "encoders"_L1);
    if (!set->encoders.empty() && set->kind != kind)
        m_path.FailAt("encoders"_L1, "the encoder set is of the other kind");
    const int count = static_cast<int>(set->encoders.size());
    const int current = TakeIndex(members, "current"_L1, count > 0 ? 0 : -1, count);
    OLCodecList list(set, current, ReadChoices(members, *set));
    members.ExpectNoMore();
    return list;
}

std::vector<OLEncoderChoice> OLCodecTableReader::ReadChoices(OLJsonMembers &members,
                                                             const OLEncoderSet &set) const
{
    std::vector<OLEncoderChoice> choices;
    std::vector<bool> chosen(set.encoders.size());
    members.ForEachElement("choices"_L1, [&](const QJsonValue &value) {
        choices.push_back(ReadChoice(OLJsonMembers(m_path, value), set));
        const auto encoder = static_cast<std::size_t>(choices.back().encoder);
        if (chosen[encoder])
            m_path.Fail("there is another choice for this encoder");
        chosen[encoder] = true;
    });
    std::ranges::sort(choices, {}, &OLEncoderChoice::encoder);
    return choices;
}

OLEncoderChoice OLCodecTableReader::ReadChoice(OLJsonMembers members, const OLEncoderSet &set) const
{
    OLEncoderChoice choice;
    choice.encoder = members.Integer("encoder"_L1, 0, static_cast<int>(set.encoders.size()) - 1);
    const OLEncoder &encoder = *set.encoders[static_cast<std::size_t>(choice.encoder)];
    choice.options = encoder.defaults;
    OLForEachOptionType(encoder.kind, [&]<class Option>() {
        int &index = choice.options[OLOptionSlot<Option>()];
        index = TakeIndex(members, OLOptionLayout<Option>::index, index,
                          encoder.OptionCount<Option>());
    });
    members.ExpectNoMore();
    return choice;
}

} // namespace Orlimo
