#include "OLJsonMembers.h"

#include <limits>
#include <utility>

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;

QString Escaped(QString name)
{
    return name.replace(u'~', "~0"_L1).replace(u'/', "~1"_L1);
}

} // namespace

OLJsonPath::Scope::Scope(OLJsonPath &path, Step step)
    : m_path(path)
{
    m_path.m_steps.push_back(std::move(step));
}

OLJsonPath::Scope::~Scope()
{
    m_path.m_steps.pop_back();
}

void OLJsonPath::Fail(std::string reason) const
{
    throw OLJsonFault { ToPointer(), std::move(reason) };
}

void OLJsonPath::FailAt(QLatin1StringView member, std::string reason)
{
    const Scope at(*this, QString(member));
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
    for (const Step &step : m_steps) {
        const auto *name = std::get_if<QString>(&step);
        pointer += u'/' + (name ? Escaped(*name) : QString::number(std::get<qsizetype>(step)));
    }
    return pointer.toStdString();
}

OLJsonMembers::OLJsonMembers(OLJsonPath &path, const QJsonValue &value)
    : m_path(path)
    , m_object(value.toObject())
{
    if (!value.isObject())
        m_path.Fail("an object is expected");
}

QJsonValue OLJsonMembers::Required(QLatin1StringView name)
{
    const QJsonValue value = Optional(name);
    if (value.isUndefined())
        m_path.Fail("the member \"" + QString(name).toStdString() + "\" is missing");
    return value;
}

QJsonValue OLJsonMembers::Optional(QLatin1StringView name)
{
    QJsonValue value = m_object.value(name);
    if (!value.isUndefined())
        m_taken.append(name);
    return value;
}

bool OLJsonMembers::Has(QLatin1StringView name) const
{
    return m_object.contains(name);
}

std::string OLJsonMembers::RequiredText(QLatin1StringView name)
{
    const QJsonValue value = Required(name);
    if (!value.isString())
        m_path.FailAt(name, "a text is expected");
    return value.toString().toStdString();
}

std::string OLJsonMembers::Text(QLatin1StringView name)
{
    std::string text;
    m_path.Attempt([&] { text = RequiredText(name); });
    return text;
}

std::string OLJsonMembers::TextOr(QLatin1StringView name, const char *otherwise)
{
    return Has(name) ? Text(name) : otherwise;
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
    constexpr qint64 none = std::numeric_limits<qint64>::min();
    const qint64 number = Required(name).toInteger(none);
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
    return Has(name) ? Integer(name, minimum, maximum) : otherwise;
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
