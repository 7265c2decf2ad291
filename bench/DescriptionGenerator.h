#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QRandomGenerator>

namespace Bench {

// A description in the shape of the shipped one: its tables and its categories, each with its share
// of the presets. Where there are f times as many presets, a category has the root of f times as
// many formats, and a format the root of f times as many presets: both grow alike. What they are is
// taken from the shipped ones in turn, in an order of chance; the same seed gives the same bytes.
//
// Every preset has "#" in its name and every hundredth "%" as well; none has "~".
class DescriptionGenerator
{
public:
    explicit DescriptionGenerator(quint32 seed);

    QByteArray Generate(int presets);

private:
    void FillCategory(QJsonObject &category, int presetsInAll);
    void FillFormat(QJsonObject &format, int presetsInAll);

    QJsonObject m_shipped;
    QRandomGenerator m_random;
    double m_formatTimes = 1; // how many times as many formats there are
    int m_presets = 0;        // made so far
};

} // namespace Bench
