#include "SampleDescription.h"

#include "IOLFmtPresetDataSource.h"
#include "IOLFmtPresetRecentItem.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLJsonValue.h"
#include "IOLJsonWriter.h"

#include <QBuffer>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

#include <initializer_list>
#include <utility>
#include <vector>

using namespace Orlimo;

namespace Test {

namespace {

std::shared_ptr<IOLFormatNode> AddNode(const std::shared_ptr<IOLFormatNode> &parent,
                                       const char *name, const char *description, int faceID)
{
    auto node = IOLFormatNode::MallocFormatNode(parent);
    node->SetName(name);
    node->SetDescription(description);
    node->SetFaceID(faceID);
    if (parent)
        parent->AppendChild(node);
    return node;
}

void AddPresets(const std::shared_ptr<IOLFormatNode> &format,
                std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        auto preset = IOLFormatPreset::MallocFormatPreset(format->Name(), "usual");
        preset->SetName(name);
        preset->SetFaceID(format->FaceID());
        format->AddPreset(preset);
    }
}

QByteArray Png(QColor color, int size)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
}

void WriteFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

} // namespace

void WriteArtwork(const QString &path, const std::map<int, QColor> &colors,
                  std::initializer_list<int> sizes)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    const auto count = static_cast<quint32>(colors.size() * sizes.size());
    stream.writeRawData("ICFG", 4);
    stream << quint16(1) << quint16(0) << count;
    quint32 offset = 12 + 16 * count;
    QByteArray images;
    for (const auto &[faceID, color] : colors) {
        for (const int size : sizes) {
            const QByteArray png = Png(color, size);
            const auto length = static_cast<quint32>(png.size());
            stream << qint32(faceID) << quint16(size) << quint16(size) << offset << length;
            offset += length;
            images += png;
        }
    }
    WriteFile(path, bytes + images);
}

SampleDescription::SampleDescription(QString name)
    : m_name(std::move(name))
{
    const QFileInfo description(m_folder.filePath(m_name));
    QDir().mkpath(description.path());
    const std::string text = IOLJsonWriter::WriteJsonString(Tree()->ToJsonValue());
    WriteFile(description.filePath(), QByteArray::fromStdString(text));
    std::map<int, QColor> colors;
    for (const int faceID : { 1, 2, 3, 4, 1001, 1002, 1003 })
        colors.emplace(faceID, ColorOf(faceID));
    WriteArtwork(description.path() + u'/' + description.completeBaseName()
                         + QStringLiteral(".icfg"),
                 colors, { 18, 33 });
}

std::string SampleDescription::Path() const
{
    return m_folder.filePath(m_name).toStdString();
}

void SampleDescription::Load() const
{
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    dataSource->AsyncLoadExternalDataSource(Path(), [] {});
    dataSource->WaitForLoadingComplete();
}

QColor SampleDescription::ColorOf(int faceID)
{
    return QColor::fromHsv(faceID * 37 % 360, 255, 200);
}

std::shared_ptr<IOLFormatNode> SampleDescription::Tree()
{
    auto root = AddNode(nullptr, "Formats", "", 0);
    const auto video = AddNode(root, "Video", "", 3);
    AddPresets(AddNode(video, "MP4", "MP4 file format", 1001), { "HD 1080P", "SD 480P" });
    AddPresets(AddNode(video, "AVI", "AVI", 1002), { "HD 720P" });
    const auto audio = AddNode(root, "Audio", "", 4);
    AddPresets(AddNode(audio, "MP3", "MP3", 1003), { "High Quality" });
    return root;
}

void ForgetPresets()
{
    const auto dataSource = IOLFmtPresetDataSource::Shared();
    for (const auto &item : dataSource->GetRecentItems())
        dataSource->RemoveRecentItem(item);
    const auto custom = dataSource->GetCustomFormatNode();
    while (const auto format = custom->FirstChild())
        custom->RemoveChild(format);
}

} // namespace Test
