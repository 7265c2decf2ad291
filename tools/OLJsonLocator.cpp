#include "OLJsonLocator.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace Orlimo {

namespace {

using namespace Qt::StringLiterals;

QString Unescaped(QString step)
{
    return step.replace("~1"_L1, "/"_L1).replace("~0"_L1, "~"_L1);
}

// The text of a string with its quotation marks.
QString TextOf(QByteArrayView string)
{
    if (!string.contains('\\'))
        return QString::fromUtf8(string.sliced(1).chopped(1));
    return QJsonDocument::fromJson('[' + string.toByteArray() + ']').array().at(0).toString();
}

} // namespace

// Goes through the text once.
class OLJsonLocator::Scanner
{
public:
    explicit Scanner(OLJsonLocator &locator)
        : m_locator(locator)
        , m_text(locator.m_lines.Text())
        , m_at(locator.m_lines.Begin())
    {
    }

    qsizetype ReadValue()
    {
        SkipAnyOf(" \t\r\n");
        const auto value = static_cast<qsizetype>(m_locator.m_values.size());
        m_locator.m_values.push_back(m_at);
        if (Current() == '{' || Current() == '[')
            ReadContents(value, Current() == '{');
        else if (Current() == '"')
            ReadString();
        else
            SkipLiteral();
        return value;
    }

private:
    char Current() const { return m_at < m_text.size() ? m_text[m_at] : '\0'; }

    void SkipAnyOf(QByteArrayView bytes)
    {
        while (m_at < m_text.size() && bytes.contains(m_text[m_at]))
            ++m_at;
    }

    void SkipLiteral()
    {
        constexpr QByteArrayView ends(" \t\r\n,]}");
        do {
            ++m_at;
        } while (m_at < m_text.size() && !ends.contains(m_text[m_at]));
    }

    QByteArrayView ReadString()
    {
        const qsizetype begin = m_at++;
        while (m_at < m_text.size() && m_text[m_at] != '"')
            m_at += m_text[m_at] == '\\' ? 2 : 1;
        m_at = std::min(m_at + 1, m_text.size());
        return m_text.sliced(begin, m_at - begin);
    }

    void ReadContents(qsizetype owner, bool isObject)
    {
        ++m_at;
        SkipAnyOf(" \t\r\n");
        for (qsizetype i = 0; m_at < m_text.size() && Current() != '}' && Current() != ']'; ++i) {
            const QString step = isObject ? TextOf(ReadString()) : QString::number(i);
            SkipAnyOf(" \t\r\n:");
            const qsizetype value = ReadValue();
            m_locator.m_steps.insert({ owner, step }, value);
            SkipAnyOf(" \t\r\n,");
        }
        ++m_at;
    }

    OLJsonLocator &m_locator;
    QByteArrayView m_text;
    qsizetype m_at;
};

OLJsonLocator::OLJsonLocator(QByteArray text)
    : m_lines(std::move(text))
{
    Scanner(*this).ReadValue();
}

OLTextPlace OLJsonLocator::PlaceOf(const QString &pointer) const
{
    qsizetype value = 0;
    for (const QString &step : pointer.split(u'/').mid(1)) {
        const auto next = m_steps.find({ value, Unescaped(step) });
        if (next == m_steps.end())
            break;
        value = *next;
    }
    return m_lines.PlaceOf(m_values[static_cast<std::size_t>(value)]);
}

} // namespace Orlimo
