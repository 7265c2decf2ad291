#include "OLCodecTableReader.h"

#include "OLOptionLayout.h"
#include "OLText.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;

// The number of options or encoders where a fault keeps it from being known.
constexpr int unknownCount = OLMaximumInteger;

template<class Option>
void ReadOption(OLJsonPath &path, const QCborValue &value, Option &option)
{
    OLJsonMembers members(path, value);
    option.text = members.Text("text"_L1);
    OLOptionLayout<Option>::Read(members, option);
    members.ExpectNoMore();
}

template<class Option>
OLOptionListPointer<Option> ReadOptionList(std::string id, OLJsonPath &path,
                                           const QCborValue &value)
{
    if (!value.isArray())
        path.Fail("an array of options is expected");
    auto list = std::make_shared<OLOptionList<Option>>();
    list->id = std::move(id);
    const QCborArray array = value.toArray();
    list->options.reserve(static_cast<std::size_t>(array.size()));
    for (qsizetype i = 0; i < array.size(); ++i) {
        const OLJsonPath::Scope at(path, i);
        Option &option = list->options.emplace_back();
        path.Attempt([&] { ReadOption(path, array.at(i), option); });
    }
    return list;
}

// Ids come sorted, so that nearly all belong at the end.
template<class Table>
std::shared_ptr<const Table> &PlaceOf(const std::string &id,
                                      std::map<std::string, std::shared_ptr<const Table>> &tables)
{
    return tables.try_emplace(tables.end(), id)->second;
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

// As above, for the id that the member called name holds.
template<class Table>
const std::shared_ptr<const Table> &ResolveAt(
        QLatin1StringView name, const std::map<std::string, std::shared_ptr<const Table>> &tables,
        const std::string &id, OLJsonPath &path)
{
    const OLJsonPath::Scope at(path, name);
    return Resolve(tables, id, path);
}

// Takes the index called name, which is inside a list of count entries or −1.
int TakeIndex(OLJsonMembers &members, QLatin1StringView name, int otherwise, int count)
{
    return members.IntegerOr(name, otherwise, -1, count - 1);
}

OLEncoderKind TakeKind(OLJsonMembers &members)
{
    const std::string kind = members.RequiredText("kind"_L1);
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
    document.ForEach("encoders"_L1, [this](std::string id, const QCborValue &value) {
        OLEncoderPointer &encoder = PlaceOf(id, m_encoders);
        encoder = ReadEncoder(std::move(id), OLJsonMembers(m_path, value));
    });
    document.ForEach("encoderSets"_L1, [this](std::string id, const QCborValue &value) {
        OLEncoderSetPointer &set = PlaceOf(id, m_sets);
        set = ReadEncoderSet(std::move(id), value);
    });
}

template<class Option>
void OLCodecTableReader::ReadOptionLists(OLJsonMembers &document)
{
    auto &lists = std::get<ListsById<Option>>(m_lists);
    document.ForEach(OLOptionLayout<Option>::lists, [&](std::string id, const QCborValue &value) {
        OLOptionListPointer<Option> &list = PlaceOf(id, lists);
        list = ReadOptionList<Option>(std::move(id), m_path, value);
    });
}

OLEncoderPointer OLCodecTableReader::ReadEncoder(std::string id, OLJsonMembers members) const
{
    auto encoder = std::make_shared<OLEncoder>();
    encoder->id = std::move(id);
    const bool kindIsKnown = m_path.Attempt([&] { encoder->kind = TakeKind(members); });
    encoder->name = members.Text("name"_L1);
    encoder->automatic = members.FlagOr("auto"_L1, false);
    if (!kindIsKnown)
        return nullptr;
    bool complete = true;
    if (!encoder->automatic) {
        OLForEachOptionType(encoder->kind, [&]<class Option>() {
            complete = TakeOptionList<Option>(members, *encoder) && complete;
        });
    }
    members.ExpectNoMore();
    return complete ? encoder : nullptr;
}

template<class Option>
bool OLCodecTableReader::TakeOptionList(OLJsonMembers &members, OLEncoder &encoder) const
{
    using Layout = OLOptionLayout<Option>;
    auto &list = std::get<OLOptionListPointer<Option>>(encoder.lists);
    bool complete = false;
    m_path.Attempt([&] {
        const std::optional<std::string> id = members.OptionalText(Layout::lists);
        if (id)
            list = ResolveAt(Layout::lists, std::get<ListsById<Option>>(m_lists), *id, m_path);
        complete = list || !id;
    });
    const int count = complete ? encoder.OptionCount<Option>() : unknownCount;
    encoder.defaults[OLOptionSlot<Option>()] = TakeIndex(members, Layout::index, count > 0 ? 0 : -1,
                                                         count);
    return complete;
}

OLEncoderSetPointer OLCodecTableReader::ReadEncoderSet(std::string id,
                                                       const QCborValue &value) const
{
    if (!value.isArray())
        m_path.Fail("an array of encoder ids is expected");
    auto set = std::make_shared<OLEncoderSet>();
    set->id = std::move(id);
    OLEncoderPointer known;
    const QCborArray array = value.toArray();
    set->encoders.reserve(static_cast<std::size_t>(array.size()));
    for (qsizetype i = 0; i < array.size(); ++i) {
        const OLJsonPath::Scope at(m_path, i);
        OLEncoderPointer &encoder = set->encoders.emplace_back();
        m_path.Attempt([&] { encoder = EncoderOf(array.at(i), known); });
        if (encoder && !known)
            known = encoder;
    }
    if (!set->encoders.empty() && !known)
        return nullptr;
    if (known)
        set->kind = known->kind;
    return set;
}

// Looks up an encoder of a set; it is of the kind of another one of them, if that is not empty.
OLEncoderPointer OLCodecTableReader::EncoderOf(const QCborValue &id,
                                               const OLEncoderPointer &other) const
{
    if (!id.isString())
        m_path.Fail("the id of an encoder is expected");
    const OLEncoderPointer &encoder = Resolve(m_encoders, OLToStdString(id.toString()), m_path);
    if (encoder && other && encoder->kind != other->kind)
        m_path.Fail("an encoder set is of one kind");
    return encoder;
}

OLCodecList OLCodecTableReader::ReadCodecList(OLJsonMembers &owner, OLEncoderKind kind)
{
    const QCborValue value = owner.Optional(OLKindName(kind));
    if (value.isUndefined())
        return {};
    const OLJsonPath::Scope in(m_path, OLKindName(kind));
    OLJsonMembers members(m_path, value);
    const OLEncoderSetPointer set = TakeSet(members, kind);
    const int count = set ? static_cast<int>(set->encoders.size()) : unknownCount;
    const int current = TakeIndex(members, "current"_L1, count > 0 ? 0 : -1, count);
    OLCodecList list(set, current, ReadChoices(members, set.get(), kind));
    members.ExpectNoMore();
    return list;
}

OLEncoderSetPointer OLCodecTableReader::TakeSet(OLJsonMembers &members, OLEncoderKind kind)
{
    LatestSet &latest = m_latestSets[kind == OLEncoderKind::Video ? 0 : 1];
    if (members.TakeIfEqual("encoders"_L1, latest.id))
        return latest.set;
    OLEncoderSetPointer set;
    m_path.Attempt([&] {
        const std::string id = members.RequiredText("encoders"_L1);
        set = ResolveAt("encoders"_L1, m_sets, id, m_path);
    });
    if (!set)
        return nullptr;
    if (set->encoders.empty() || set->kind == kind) {
        latest = { QCborValue(ToQString(set->id)), set };
        return set;
    }
    m_path.ReportAt("encoders"_L1, "the encoder set is of the other kind");
    return nullptr;
}

OLCodecTableReader::Choices OLCodecTableReader::ReadChoices(OLJsonMembers &members,
                                                            const OLEncoderSet *set,
                                                            OLEncoderKind kind) const
{
    Choices choices;
    std::set<int> chosen;
    const QCborArray array = members.Array("choices"_L1);
    members.ForEachElement("choices"_L1, array, [&](QCborValueConstRef value) {
        choices.push_back(ReadChoice(OLJsonMembers(m_path, value), set, kind));
        const int encoder = choices.back().encoder;
        if (encoder >= 0 && !chosen.insert(encoder).second)
            m_path.Fail("there is another choice for this encoder");
    });
    std::ranges::sort(choices, {}, &OLEncoderChoice::encoder);
    return choices;
}

OLEncoderChoice OLCodecTableReader::ReadChoice(OLJsonMembers members, const OLEncoderSet *set,
                                               OLEncoderKind kind) const
{
    OLEncoderChoice choice { -1, OLNoOptions };
    const int count = set ? static_cast<int>(set->encoders.size()) : unknownCount;
    m_path.Attempt([&] { choice.encoder = members.RequiredInteger("encoder"_L1, 0, count - 1); });
    const OLEncoder *encoder = nullptr;
    if (set && choice.encoder >= 0)
        encoder = set->encoders[static_cast<std::size_t>(choice.encoder)].get();
    if (encoder)
        choice.options = encoder->defaults;
    OLForEachOptionType(kind, [&]<class Option>() {
        int &index = choice.options[OLOptionSlot<Option>()];
        index = TakeIndex(members, OLOptionLayout<Option>::index, index,
                          encoder ? encoder->OptionCount<Option>() : unknownCount);
    });
    members.ExpectNoMore();
    return choice;
}

} // namespace Orlimo
