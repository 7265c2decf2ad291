#pragma once

#include <QCborArray>
#include <QCborMap>
#include <QCborValue>
#include <QLatin1StringView>
#include <QString>
#include <QVarLengthArray>

#include <optional>
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

// The text in UTF-8.
std::string OLToStdString(const QString &text);

// The members of one JSON object, each of which must be asked for: ExpectNoMore() fails where the
// object has a member that was not. Where faults are collected, a value of the wrong type or range
// is reported and read as the nearest harmless one: an empty text, false, the minimum.
//
// A JSON value is taken as the CBOR value that shares its data, which finds a member of a small
// object in half the time.
class OLJsonMembers
{
public:
    // The value is a QCborValue or what stands for one in an array or map.
    template<class Value>
    OLJsonMembers(OLJsonPath &path, const Value &value);
    OLJsonMembers(const OLJsonMembers &) = delete;
    OLJsonMembers &operator=(const OLJsonMembers &) = delete;
    ~OLJsonMembers() = default;

    QCborValue Required(QLatin1StringView name);
    QCborValue Optional(QLatin1StringView name); // undefined where it is absent
    bool Has(QLatin1StringView name) const;      // false where all were asked for

    // Whether the member is there with this value. If not, it is still to be asked for.
    bool TakeIfEqual(QLatin1StringView name, const QCborValue &value);

    std::string RequiredText(QLatin1StringView name);                // fails in any case
    std::optional<std::string> OptionalText(QLatin1StringView name); // the same
    int RequiredInteger(QLatin1StringView name, int minimum, int maximum);

    std::string Text(QLatin1StringView name);
    std::string TextOr(QLatin1StringView name, const char *otherwise);
    bool FlagOr(QLatin1StringView name, bool otherwise);
    int Integer(QLatin1StringView name, int minimum, int maximum);
    int IntegerOr(QLatin1StringView name, int otherwise, int minimum, int maximum);

    // Calls handle(name, value), with a std::string and a QCborValue, for every member of the
    // object called name, which may be absent.
    template<class Handler>
    void ForEach(QLatin1StringView name, Handler handle);

    // The array called name, or an empty one where it is absent.
    QCborArray Array(QLatin1StringView name);

    // Calls handle(QCborValueConstRef) for every element of array, which is the one called name.
    template<class Handler>
    void ForEachElement(QLatin1StringView name, const QCborArray &array, Handler handle);

    void ExpectNoMore() const;

    OLJsonPath &Path() const { return m_path; }

private:
    using Member = QCborMap::ConstIterator;

    Member Find(QLatin1StringView name); // the end where it is absent
    Member FindRequired(QLatin1StringView name);
    Member Take(QLatin1StringView name, Member member);
    bool AreAllTaken() const { return m_taken.size() >= m_count; }
    bool IsThere(Member member) const { return member != m_end; }

    std::string TextOf(QLatin1StringView name, Member member);
    int IntegerOf(QLatin1StringView name, Member member, int minimum, int maximum);
    QCborMap ObjectOrNone(QLatin1StringView name);

    OLJsonPath &m_path;
    const QCborMap m_object;
    const Member m_end;
    const qsizetype m_count;
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
    , m_object(value.toMap())
    , m_end(m_object.constEnd())
    , m_count(m_object.size())
{
    if (!value.isMap())
        m_path.Fail("an object is expected");
}

template<class Handler>
void OLJsonMembers::ForEach(QLatin1StringView name, Handler handle)
{
    const QCborMap object = ObjectOrNone(name);
    const OLJsonPath::Scope in(m_path, name);
    for (auto member = object.constBegin(); member != object.constEnd(); ++member) {
        const QString key = member.key().toString();
        const OLJsonPath::Scope at(m_path, key);
        m_path.Attempt([&] { handle(OLToStdString(key), QCborValue(member.value())); });
    }
}

template<class Handler>
void OLJsonMembers::ForEachElement(QLatin1StringView name, const QCborArray &array, Handler handle)
{
    const OLJsonPath::Scope in(m_path, name);
    for (auto element = array.begin(); element != array.end(); ++element) {
        const OLJsonPath::Scope at(m_path, element - array.begin());
        m_path.Attempt([&] { handle(*element); });
    }
}

} // namespace Orlimo
