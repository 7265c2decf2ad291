#pragma once

#include <QByteArray>
#include <QJsonObject>

namespace Bench {

// A description in the shape of the shipped one: its tables, its categories, and as many formats
// and presets to each in proportion, all taken from it at random. The same seed gives the same
// bytes.
//
// Every preset has "#" in its name and every hundredth "%" as well; none has "~".
class DescriptionGenerator
{
public:
    explicit DescriptionGenerator(quint32 seed);

    QByteArray Generate(int presets) const;

private:
    QJsonObject m_shipped;
    quint32 m_seed;
};

} // namespace Bench
