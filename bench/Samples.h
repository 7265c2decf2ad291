#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace Bench {

// Where the measures keep their files; it goes with the process.
const QTemporaryDir &Folder();

void WriteFile(const QString &path, const QByteArray &bytes);
QByteArray Contents(const QString &path);

// The path of the generated description of so many presets, made when it is first asked for.
QString DescriptionPath(int presets);
// The same, with its artwork beside it.
QString DescriptionWithArtwork(int presets);

// Writes the generated description of so many presets and its artwork into the folder, as
// PRESETS.json and PRESETS.icfg. Makes the folder where there is none.
void WriteDescription(const QString &folder, int presets);

} // namespace Bench
