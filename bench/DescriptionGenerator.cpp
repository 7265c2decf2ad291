#include "DescriptionGenerator.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>

namespace Bench {

namespace {

using namespace Qt::StringLiterals;

int PresetCount(const QJsonObject &node)
{
    int count = static_cast<int>(node["presets"_L1].toArray().size());
    for (const QJsonValue &child : node["children"_L1].toArray())
        count += PresetCount(child.toObject());
    return count;
}

QJsonObject RandomElement(const QJsonArray &array, QRandomGenerator &random)
{
    return array[random.bounded(static_cast<int>(array.size()))].toObject();
}

// Takes presets of a format of the shipped category one after the other, then of the next format.
class CategoryFiller
{
public:
    CategoryFiller(const QJsonObject &shipped, QRandomGenerator &random, int &number)
        : m_formats(shipped["children"_L1].toArray())
        , m_random(random)
        , m_number(number)
    {
    }

    QJsonArray Fill(int presets)
    {
        QJsonArray formats;
        while (presets > 0) {
            const QJsonObject format = Format(presets);
            presets -= PresetCount(format);
            formats.append(format);
        }
        return formats;
    }

private:
    QJsonObject Format(int mostPresets)
    {
        QJsonObject format = RandomElement(m_formats, m_random);
        QJsonArray presets;
        for (const QJsonValue &shipped : format["presets"_L1].toArray()) {
            if (presets.size() < mostPresets)
                presets.append(Preset(shipped.toObject()));
        }
        format["name"_L1] = format["name"_L1].toString() + u' ' + QString::number(m_number);
        format["presets"_L1] = presets;
        return format;
    }

    QJsonObject Preset(QJsonObject preset)
    {
        ++m_number;
        preset["name"_L1] = preset["name"_L1].toString() + u" #"_s + QString::number(m_number)
                + (m_number % 100 == 0 ? u"%"_s : QString());
        return preset;
    }

    QJsonArray m_formats;
    QRandomGenerator &m_random;
    int &m_number;
};

} // namespace

DescriptionGenerator::DescriptionGenerator(quint32 seed)
    : m_seed(seed)
{
    QFile file(QStringLiteral(SHIPPED_DESCRIPTION));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", SHIPPED_DESCRIPTION);
    m_shipped = QJsonDocument::fromJson(file.readAll()).object();
}

QByteArray DescriptionGenerator::Generate(int presets) const
{
    QRandomGenerator random(m_seed);
    QJsonObject description = m_shipped;
    QJsonObject root = description["root"_L1].toObject();
    const int shippedPresets = PresetCount(root);
    QJsonArray categories;
    int number = 0;
    for (const QJsonValue &value : root["children"_L1].toArray()) {
        QJsonObject category = value.toObject();
        const int share = static_cast<int>(qint64(presets) * PresetCount(category)
                                           / shippedPresets);
        category["children"_L1] = CategoryFiller(category, random, number).Fill(share);
        categories.append(category);
    }
    root["children"_L1] = categories;
    description["root"_L1] = root;
    return QJsonDocument(description).toJson(QJsonDocument::Compact);
}

} // namespace Bench
