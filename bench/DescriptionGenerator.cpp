#include "DescriptionGenerator.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>

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

QJsonArray Shuffled(const QJsonArray &array, QRandomGenerator &random)
{
    QJsonArray shuffled = array;
    for (qsizetype i = shuffled.size() - 1; i > 0; --i) {
        const auto other = static_cast<qsizetype>(random.bounded(static_cast<int>(i) + 1));
        const QJsonValue value = shuffled[i];
        shuffled[i] = shuffled[other];
        shuffled[other] = value;
    }
    return shuffled;
}

} // namespace

DescriptionGenerator::DescriptionGenerator(quint32 seed)
    : m_random(seed)
{
    QFile file(QStringLiteral(SHIPPED_DESCRIPTION));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", SHIPPED_DESCRIPTION);
    m_shipped = QJsonDocument::fromJson(file.readAll()).object();
}

QByteArray DescriptionGenerator::Generate(int presets)
{
    QJsonObject description = m_shipped;
    QJsonObject root = description["root"_L1].toObject();
    const double times = double(presets) / PresetCount(root);
    m_formatTimes = std::sqrt(times);
    m_presets = 0;
    QJsonArray categories;
    double wanted = 0;
    for (const QJsonValue &value : root["children"_L1].toArray()) {
        QJsonObject category = value.toObject();
        wanted += PresetCount(category) * times;
        FillCategory(category, static_cast<int>(std::lround(wanted)));
        categories.append(category);
    }
    root["children"_L1] = categories;
    description["root"_L1] = root;
    return QJsonDocument(description).toJson(QJsonDocument::Compact);
}

// Adds presets until there are so many in all.
void DescriptionGenerator::FillCategory(QJsonObject &category, int presetsInAll)
{
    const QJsonArray shipped = Shuffled(category["children"_L1].toArray(), m_random);
    const int formatCount = std::max(1, int(std::lround(double(shipped.size()) * m_formatTimes)));
    const int first = m_presets;
    QJsonArray formats;
    for (int i = 0; i < formatCount; ++i) {
        QJsonObject format = shipped[i % shipped.size()].toObject();
        format["name"_L1] = format["name"_L1].toString() + u' ' + QString::number(i + 1);
        FillFormat(format, first + int(qint64(presetsInAll - first) * (i + 1) / formatCount));
        formats.append(format);
    }
    category["children"_L1] = formats;
}

void DescriptionGenerator::FillFormat(QJsonObject &format, int presetsInAll)
{
    const QJsonArray shipped = Shuffled(format["presets"_L1].toArray(), m_random);
    QJsonArray presets;
    while (m_presets < presetsInAll) {
        QJsonObject preset = shipped[presets.size() % shipped.size()].toObject();
        ++m_presets;
        preset["name"_L1] = preset["name"_L1].toString() + u" #"_s + QString::number(m_presets)
                + (m_presets % 100 == 0 ? u"%"_s : QString());
        presets.append(preset);
    }
    format["presets"_L1] = presets;
}

} // namespace Bench
