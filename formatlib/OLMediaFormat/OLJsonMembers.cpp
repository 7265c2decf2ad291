#include "OLJsonMembers.h"

#include <QJsonValue>

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

// The least number of its type where the value is no whole number.
qint64 WholeNumber(QCborValueConstRef value)
{
    constexpr qint64 none = std::numeric_limits<qint64>::min();
    if (value.isDouble())
        return QJsonValue(value.toDouble()).toInteger(none);
    return value.toInteger(none);
}

} // namespace

// Most texts are ASCII, which needs no conversion.
std::string OLToStdString(const QString &text)
{
    std::string ascii(static_cast<std::size_t>(text.size()), '\0');
    char16_t bits = 0;
    std::ranges::transform(text, ascii.begin(), [&bits](QChar c) {
        bits |= c.unicode();
        return static_cast<char>(c.unicode());
    });
    if (bits >= 0x80)
        return text.toStdString();
    return ascii;
}

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
    return AreAllTaken() ? m_end : Take(name, m_object.constFind(name));
}

OLJsonMembers::Member OLJsonMembers::Take(QLatin1StringView name, Member member)
{
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

QCborValue OLJsonMembers::Required(QLatin1StringView name)
{
    return FindRequired(name).value();
}

QCborValue OLJsonMembers::Optional(QLatin1StringView name)
{
    const Member member = Find(name);
    return IsThere(member) ? QCborValue(member.value()) : QCborValue();
}

bool OLJsonMembers::Has(QLatin1StringView name) const
{
    return !AreAllTaken() && m_object.contains(name);
}

bool OLJsonMembers::TakeIfEqual(QLatin1StringView name, const QCborValue &value)
{
    const Member member = m_object.constFind(name);
    if (!IsThere(member) || member.value() != value)
        return false;
    Take(name, member);
    return true;
}

std::string OLJsonMembers::RequiredText(QLatin1StringView name)
{
    return TextOf(name, FindRequired(name));
}

std::optional<std::string> OLJsonMembers::OptionalText(QLatin1StringView name)
{
    const Member member = Find(name);
    return IsThere(member) ? std::optional(TextOf(name, member)) : std::nullopt;
}

std::string OLJsonMembers::TextOf(QLatin1StringView name, Member member)
{
    if (!member->isString())
        m_path.FailAt(name, "a text is expected");
    return OLToStdString(member->toString());
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
    const QCborValue value = Optional(name);
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
    const qint64 number = WholeNumber(member.value());
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
    if (AreAllTaken())
        return;
    if (!m_path.Collects())
        m_path.Fail("there is a member that this layout does not know");
    for (const auto &[key, value] : m_object) {
        const QString name = key.toString();
        if (m_taken.contains(name))
            continue;
        const OLJsonPath::Scope at(m_path, name);
        m_path.Report("this layout does not know the member");
    }
}

QCborMap OLJsonMembers::ObjectOrNone(QLatin1StringView name)
{
    const Member member = Find(name);
    if (!IsThere(member))
        return {};
    if (!member->isMap())
        m_path.ReportAt(name, "an object is expected");
    return member->toMap();
}

QCborArray OLJsonMembers::Array(QLatin1StringView name)
{
    const Member member = Find(name);
    if (!IsThere(member))
        return {};
    if (!member->isArray())
        m_path.ReportAt(name, "an array is expected");
    return member->toArray();
}

} // namespace Orlimo
