#pragma once

#include <QList>
#include <QString>

namespace Orlimo {
class IOLFormatPreset;
} // namespace Orlimo

namespace Host {

// One setting of a preset, as the user reads it and as an encoder takes it.
struct EncoderSetting
{
    QString name;
    QString text;
    QString value;
};

// The settings of the video and audio encoders that are chosen in the preset; those of an encoder
// that is not there, or that the engine chooses by itself, are left out.
QList<EncoderSetting> EncoderSettingsOf(const Orlimo::IOLFormatPreset &preset);

} // namespace Host
