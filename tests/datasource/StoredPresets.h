#pragma once

#include "FormatObjects.h"

#include "IOLAppSettings.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>

namespace Test {

inline constexpr QLatin1StringView recentKey("recent_format_preset");
inline constexpr QLatin1StringView customKey("custom_format_preset");

// The settings as the application finds them in their file.
inline QSettings Settings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope,
                     QCoreApplication::organizationName(), QCoreApplication::applicationName());
}

inline QByteArray SettingsFile()
{
    QFile file(Settings().fileName());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline QByteArray Stored(QLatin1StringView key)
{
    return Settings().value(key).toString().toUtf8();
}

// The root node that the stored value holds.
inline QJsonObject StoredRoot(QLatin1StringView key)
{
    const auto text = QByteArray::fromBase64Encoding(Stored(key),
                                                     QByteArray::AbortOnBase64DecodingErrors);
    return QJsonDocument::fromJson(*text).object().value(QLatin1StringView("root")).toObject();
}

inline std::string StoredChildNames(QLatin1StringView key)
{
    std::string names;
    for (const QJsonValue child : StoredRoot(key).value(QLatin1StringView("children")).toArray())
        Join(names, child[QLatin1StringView("name")].toString().toStdString());
    return names;
}

// Stores value under both keys.
inline void Store(const QByteArray &value)
{
    const auto settings = Orlimo::IOLAppSettings::Shared();
    for (const auto key : { recentKey, customKey })
        settings->SetValue(value.toStdString(), key.latin1());
    settings->Save();
}

} // namespace Test
