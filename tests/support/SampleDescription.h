#pragma once

#include <QColor>
#include <QString>
#include <QTemporaryDir>

#include <map>
#include <memory>
#include <string>

namespace Orlimo {
class IOLFormatNode;
}

namespace Test {

// A small format description with artwork beside it, in a temporary folder of its own:
//
// "Video" (face id 3) with "MP4" (1001; presets "HD 1080P", "SD 480P") and "AVI" (1002; "HD 720P"),
// "Audio" (face id 4) with "MP3" (1003; "High Quality").
//
// Every face id, those of the Recent (1) and Custom (2) tabs too, has a square of one colour in the
// sizes 18 and 33.
//
// The description is in the file of the given name, which may be in folders below the temporary
// one.
class SampleDescription
{
public:
    explicit SampleDescription(QString name = QStringLiteral("formats.json"));

    QString Folder() const { return m_folder.path(); }
    std::string Path() const; // of the description, UTF-8
    void Load() const;        // into the process's data source
    static QColor ColorOf(int faceID);

    // A tree of the same content that was never in a file.
    static std::shared_ptr<Orlimo::IOLFormatNode> Tree();

private:
    QTemporaryDir m_folder;
    QString m_name;
};

// Writes an artwork file of one-coloured squares, each in the given sizes.
void WriteArtwork(const QString &path, const std::map<int, QColor> &colors,
                  std::initializer_list<int> sizes);

// Empties the recent choices and custom presets of the process's data source.
void ForgetPresets();

} // namespace Test
