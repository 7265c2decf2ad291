#include "OLJsonMembers.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;

QString Part(qsizetype index)
{
    return QString::number(index);
}

QString Part(QString name)
{
    return name.replace(u'~', "~0"_L1).replace(u'/', "~1"_L1);
}

// Most texts are ASCII, which needs no conversion.
std::string ToStdString(const QString &text)
{
    const auto isAscii = [](QChar c) { return c.unicode() < 0x80; };
    if (!std::ranges::all_of(text, isAscii))
        return text.toStdString();
    std::string ascii(static_cast<std::size_t>(text.size()), '\0');
    std::ranges::transform(text, ascii.begin(), [](QChar c) { return c.toLatin1(); });
    return ascii;
}

} // namespace

void OLJsonPath::Fail(std::string reason) const
{
    throw OLJsonFault { ToPointer(), std::move(reason) };
}

void OLJsonPath::FailAt(QLatin1StringView member, std::string reason)
{
    const Scope at(*this, member);
    Fail(std::move(reason));
}

void OLJsonPath::Report(std::string reason) const
{
    Attempt([&] { Fail(std::move(reason)); });
}

void OLJsonPath::ReportAt(QLatin1StringView member, std::string reason)
{
    Attempt([&] { FailAt(member, std::move(reason)); });
}

std::string OLJsonPath::ToPointer() const
{
    QString pointer;
    for (const Step &step : m_steps)
        pointer += u'/' + std::visit([](const auto &part) { return Part(part); }, step);
    return pointer.toStdString();
}

OLJsonMembers::Member OLJsonMembers::Find(QLatin1StringView name)
{
    const Member member = m_object.constFind(name);
    if (IsThere(member))
        m_taken.append(name);
    return member;
}

OLJsonMembers::Member OLJsonMembers::FindRequired(QLatin1StringView name)
{
    const Member member = Find(name);
    if (!IsThere(member))
        m_path.Fail("the member \"" + QString(name).toStdString() + "\" is missing");
    return member;
}

QJsonValue OLJsonMembers::Required(QLatin1StringView name)
{
    return *FindRequired(name);
}

QJsonValue OLJsonMembers::Optional(QLatin1StringView name)
{
    const Member member = Find(name);
    return IsThere(member) ? QJsonValue(*member) : QJsonValue(QJsonValue::Undefined);
}

bool OLJsonMembers::Has(QLatin1StringView name) const
{
    return m_object.contains(name);
}

std::string OLJsonMembers::RequiredText(QLatin1StringView name)
{
    return TextOf(name, FindRequired(name));
}

std::string OLJsonMembers::TextOf(QLatin1StringView name, Member member)
{
    if (!member->isString())
        m_path.FailAt(name, "a text is expected");
    return ToStdString(member->toString());
}

std::string OLJsonMembers::Text(QLatin1StringView name)
{
    std::string text;
    m_path.Attempt([&] { text = RequiredText(name); });
    return text;
}

std::string OLJsonMembers::TextOr(QLatin1StringView name, const char *otherwise)
{
    const Member member = Find(name);
    if (!IsThere(member))
        return otherwise;
    std::string text;
    m_path.Attempt([&] { text = TextOf(name, member); });
    return text;
}

bool OLJsonMembers::FlagOr(QLatin1StringView name, bool otherwise)
{
    const QJsonValue value = Optional(name);
    if (!value.isUndefined() && !value.isBool())
        m_path.ReportAt(name, "true or false is expected");
    return value.toBool(otherwise);
}

int OLJsonMembers::RequiredInteger(QLatin1StringView name, int minimum, int maximum)
{
    return IntegerOf(name, FindRequired(name), minimum, maximum);
}

int OLJsonMembers::IntegerOf(QLatin1StringView name, Member member, int minimum, int maximum)
{
    constexpr qint64 none = std::numeric_limits<qint64>::min();
    const qint64 number = member->toInteger(none);
    if (number < minimum || number > maximum) {
        m_path.FailAt(name,
                      "a whole number from " + std::to_string(minimum) + " to "
                              + std::to_string(maximum) + " is expected");
    }
    return static_cast<int>(number);
}

int OLJsonMembers::Integer(QLatin1StringView name, int minimum, int maximum)
{
    int number = minimum;
    m_path.Attempt([&] { number = RequiredInteger(name, minimum, maximum); });
    return number;
}

int OLJsonMembers::IntegerOr(QLatin1StringView name, int otherwise, int minimum, int maximum)
{
    const Member member = Find(name);
    if (!IsThere(member))
        return otherwise;
    int number = minimum;
    m_path.Attempt([&] { number = IntegerOf(name, member, minimum, maximum); });
    return number;
}

void OLJsonMembers::ExpectNoMore() const
{
    if (m_taken.size() >= m_object.size())
        return;
    if (!m_path.Collects())
        m_path.Fail("there is a member that this layout does not know");
    for (const QString &name : m_object.keys()) {
        if (m_taken.contains(name))
            continue;
        const OLJsonPath::Scope at(m_path, name);
        m_path.Report("this layout does not know the member");
    }
}

std::size_t OLJsonMembers::ElementCount(QLatin1StringView name) const
{
    return static_cast<std::size_t>(m_object.value(name).toArray().size());
}

QJsonObject OLJsonMembers::ObjectOrNone(QLatin1StringView name)
{
    const QJsonValue value = Optional(name);
    if (!value.isUndefined() && !value.isObject())
        m_path.ReportAt(name, "an object is expected");
    return value.toObject();
}

QJsonArray OLJsonMembers::ArrayOrNone(QLatin1StringView name)
{
    const QJsonValue value = Optional(name);
    if (!value.isUndefined() && !value.isArray())
        m_path.ReportAt(name, "an array is expected");
    return value.toArray();
}

} // namespace Orlimo
