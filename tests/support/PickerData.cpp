#include "PickerData.h"

#include "SampleDescription.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLJsonReader.h"
#include "IOLJsonValue.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

using namespace Orlimo;

namespace Test {

namespace {

QSettings SettingsFile()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope,
                     QCoreApplication::organizationName(), QCoreApplication::applicationName());
}

} // namespace

void LoadArtwork(const std::map<int, QColor> &colors, std::initializer_list<int> sizes)
{
    const QTemporaryDir folder;
    const QString description = folder.filePath(QStringLiteral("formats.json"));
    QFile file(description);
    const QByteArray text(R"({ "version": 1, "root": { "name": "Formats" } })");
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write %s", qPrintable(description));
    file.close();
    WriteArtwork(folder.filePath(QStringLiteral("formats.icfg")), colors, sizes);

    const auto dataSource = IOLFmtPresetDataSource::Shared();
    dataSource->AsyncLoadExternalDataSource(description.toStdString(), [] {});
    dataSource->WaitForLoadingComplete();
}

std::shared_ptr<IOLFormatNode> StoredTree(const char *key)
{
    const QString encoded = SettingsFile().value(QLatin1StringView(key)).toString();
    const QByteArray text = QByteArray::fromBase64(encoded.toLatin1());
    return IOLFormatNode::MallocFormatNode(
            IOLJsonReader::ReadJsonString(text.toStdString(), nullptr));
}

void ForgetStoredTree(const char *key)
{
    SettingsFile().remove(QLatin1StringView(key));
}

} // namespace Test
