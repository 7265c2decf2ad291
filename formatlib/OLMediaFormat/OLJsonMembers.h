#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QLatin1StringView>
#include <QString>
#include <QVarLengthArray>

#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace Orlimo {

// Where and how a document breaks its layout. Thrown inside the readers; never leaves them.
struct OLJsonFault
{
    std::string pointer; // RFC 6901
    std::string reason;
};

// The way from the document to the value that is being read, and what becomes of a fault there: the
// first one ends the reading unless faults are collected.
class OLJsonPath
{
public:
    // A member that the layout names, any other member, or the index of an element.
    using Step = std::variant<QLatin1StringView, QString, qsizetype>;

    // Goes down one step for as long as it lives.
    class Scope
    {
    public:
        template<class Part>
        Scope(OLJsonPath &path, Part step)
            : m_path(path)
        {
            m_path.m_steps.emplace_back(std::move(step));
        }

        Scope(const Scope &) = delete;
        Scope &operator=(const Scope &) = delete;
        ~Scope() { m_path.m_steps.pop_back(); }

    private:
        OLJsonPath &m_path;
    };

    // From now on a fault is appended to faults, which outlives the path, and the reading goes on.
    void CollectInto(std::vector<OLJsonFault> &faults) { m_faults = &faults; }
    bool Collects() const { return m_faults; }

    // Ends the attempt, or the whole reading where there is none.
    [[noreturn]] void Fail(std::string reason) const;
    [[noreturn]] void FailAt(QLatin1StringView member, std::string reason);

    // As above, but returns where faults are collected.
    void Report(std::string reason) const;
    void ReportAt(QLatin1StringView member, std::string reason);

    // Calls read() and returns whether it came to its end. It always does where faults are not
    // collected, since a fault ends more than the attempt.
    template<class Reading>
    bool Attempt(Reading read) const;

private:
    std::string ToPointer() const;

    std::vector<Step> m_steps;
    std::vector<OLJsonFault> *m_faults = nullptr;
};

// The members of one JSON object, each of which must be asked for: ExpectNoMore() fails where the
// object has a member that was not. Where faults are collected, a value of the wrong type or range
// is reported and read as the nearest harmless one: an empty text, false, the minimum.
class OLJsonMembers
{
public:
    // The value is a QJsonValue or what stands for one in an array or object.
    template<class Value>
    OLJsonMembers(OLJsonPath &path, const Value &value);
    OLJsonMembers(const OLJsonMembers &) = delete;
    OLJsonMembers &operator=(const OLJsonMembers &) = delete;
    ~OLJsonMembers() = default;

    QJsonValue Required(QLatin1StringView name);
    QJsonValue Optional(QLatin1StringView name); // undefined where it is absent
    bool Has(QLatin1StringView name) const;

    std::string RequiredText(QLatin1StringView name); // fails in any case
    int RequiredInteger(QLatin1StringView name, int minimum, int maximum);

    std::string Text(QLatin1StringView name);
    std::string TextOr(QLatin1StringView name, const char *otherwise);
    bool FlagOr(QLatin1StringView name, bool otherwise);
    int Integer(QLatin1StringView name, int minimum, int maximum);
    int IntegerOr(QLatin1StringView name, int otherwise, int minimum, int maximum);

    // Calls handle(name, value) for every member of the object called name, which may be absent.
    template<class Handler>
    void ForEach(QLatin1StringView name, Handler handle);

    // Calls handle(QJsonValueConstRef) for every element of the array called name, which may be
    // absent.
    template<class Handler>
    void ForEachElement(QLatin1StringView name, Handler handle);

    // How many elements ForEachElement() would see.
    std::size_t ElementCount(QLatin1StringView name) const;

    void ExpectNoMore() const;

    OLJsonPath &Path() const { return m_path; }

private:
    using Member = QJsonObject::const_iterator;

    Member Find(QLatin1StringView name); // the end where it is absent
    Member FindRequired(QLatin1StringView name);
    bool IsThere(Member member) const { return member != m_end; }

    std::string TextOf(QLatin1StringView name, Member member);
    int IntegerOf(QLatin1StringView name, Member member, int minimum, int maximum);
    QJsonObject ObjectOrNone(QLatin1StringView name);
    QJsonArray ArrayOrNone(QLatin1StringView name);

    OLJsonPath &m_path;
    const QJsonObject m_object;
    const Member m_end;
    QVarLengthArray<QLatin1StringView, 16> m_taken;
};

template<class Reading>
bool OLJsonPath::Attempt(Reading read) const
{
    if (!m_faults) {
        read();
        return true;
    }
    try {
        read();
        return true;
    } catch (OLJsonFault &fault) {
        m_faults->push_back(std::move(fault));
        return false;
    }
}

template<class Value>
OLJsonMembers::OLJsonMembers(OLJsonPath &path, const Value &value)
    : m_path(path)
    , m_object(value.toObject())
    , m_end(m_object.constEnd())
{
    if (!value.isObject())
        m_path.Fail("an object is expected");
}

template<class Handler>
void OLJsonMembers::ForEach(QLatin1StringView name, Handler handle)
{
    const QJsonObject object = ObjectOrNone(name);
    const OLJsonPath::Scope in(m_path, name);
    for (auto member = object.begin(); member != object.end(); ++member) {
        const OLJsonPath::Scope at(m_path, member.key());
        m_path.Attempt([&] { handle(member.key(), QJsonValue(member.value())); });
    }
}

template<class Handler>
void OLJsonMembers::ForEachElement(QLatin1StringView name, Handler handle)
{
    const QJsonArray array = ArrayOrNone(name);
    const OLJsonPath::Scope in(m_path, name);
    for (auto element = array.begin(); element != array.end(); ++element) {
        const OLJsonPath::Scope at(m_path, element - array.begin());
        m_path.Attempt([&] { handle(*element); });
    }
}

} // namespace Orlimo
