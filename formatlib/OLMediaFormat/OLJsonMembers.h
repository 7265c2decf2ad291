#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QLatin1StringView>
#include <QString>

#include <string>
#include <variant>
#include <vector>

namespace Orlimo {

// Thrown inside the readers where a document breaks its layout; never leaves them.
struct OLJsonFault
{
    std::string pointer; // RFC 6901
    std::string reason;
};

// The way from the document to the value that is being read.
class OLJsonPath
{
public:
    using Step = std::variant<QString, qsizetype>;

    // Goes down one step for as long as it lives.
    class Scope
    {
    public:
        Scope(OLJsonPath &path, Step step);
        Scope(const Scope &) = delete;
        Scope &operator=(const Scope &) = delete;
        ~Scope();

    private:
        OLJsonPath &m_path;
    };

    [[noreturn]] void Fail(std::string reason) const;
    [[noreturn]] void FailAt(QLatin1StringView member, std::string reason);

private:
    std::string ToPointer() const;

    std::vector<Step> m_steps;
};

// The members of one JSON object, each of which must be asked for: ExpectNoMore() fails where the
// object has a member that was not.
class OLJsonMembers
{
public:
    OLJsonMembers(OLJsonPath &path, const QJsonValue &value);

    QJsonValue Required(QLatin1StringView name);
    QJsonValue Optional(QLatin1StringView name); // undefined where it is absent
    bool Has(QLatin1StringView name) const;

    std::string Text(QLatin1StringView name);
    std::string TextOr(QLatin1StringView name, const char *otherwise);
    bool FlagOr(QLatin1StringView name, bool otherwise);
    int Integer(QLatin1StringView name, int minimum, int maximum);
    int IntegerOr(QLatin1StringView name, int otherwise, int minimum, int maximum);

    // Calls handle(name, value) for every member of the object called name, which may be absent.
    template<class Handler>
    void ForEach(QLatin1StringView name, Handler handle);

    // Calls handle(value) for every element of the array called name, which may be absent.
    template<class Handler>
    void ForEachElement(QLatin1StringView name, Handler handle);

    void ExpectNoMore() const;

    OLJsonPath &Path() const { return m_path; }

private:
    QJsonObject ObjectOrNone(QLatin1StringView name);
    QJsonArray ArrayOrNone(QLatin1StringView name);

    OLJsonPath &m_path;
    QJsonObject m_object;
    qsizetype m_taken = 0;
};

template<class Handler>
void OLJsonMembers::ForEach(QLatin1StringView name, Handler handle)
{
    const QJsonObject object = ObjectOrNone(name);
    const OLJsonPath::Scope in(m_path, QString(name));
    for (auto member = object.begin(); member != object.end(); ++member) {
        const OLJsonPath::Scope at(m_path, member.key());
        handle(member.key(), QJsonValue(member.value()));
    }
}

template<class Handler>
void OLJsonMembers::ForEachElement(QLatin1StringView name, Handler handle)
{
    const QJsonArray array = ArrayOrNone(name);
    const OLJsonPath::Scope in(m_path, QString(name));
    for (qsizetype i = 0; i < array.size(); ++i) {
        const OLJsonPath::Scope at(m_path, i);
        handle(array.at(i));
    }
}

} // namespace Orlimo
