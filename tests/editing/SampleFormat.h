#pragma once

#include <QByteArray>
#include <QList>

#include <memory>
#include <string>

namespace Orlimo {
class IOLFormatNode;
class IOLFormatPreset;
} // namespace Orlimo

namespace Test {

// The format "MP4" with presets of all kinds. Those with a video side choose from the encoders
// "Auto video", "Alpha" and "Beta", those with an audio side from "Auto audio", "Gamma" and
// "Delta":
//
// HD           Alpha and Delta
// Automatic    both automatic encoders
// Audio only   no video side; Gamma
// None chosen  no current encoder on either side
// Unset        Alpha and Gamma without any current option
// Long         encoders and options with long texts
std::shared_ptr<Orlimo::IOLFormatNode> MakeSampleFormat();

// A copy of the preset of that name in a sample format.
std::shared_ptr<Orlimo::IOLFormatPreset> MakeSamplePreset(const std::string &name);

// The description of a preset with one encoder on each side, which has one option of every kind.
// Their texts are all "Text"; the lists are called "sizes", "rates", "pictures", "speakers",
// "samples" and "sounds", and "none" is an empty list of every kind.
QByteArray OneOfEachDescription();

// The first preset of a description.
std::shared_ptr<Orlimo::IOLFormatPreset> MakePresetOf(const QByteArray &description);

// The tree that the JSON text describes; empty where it cannot be read.
std::shared_ptr<Orlimo::IOLFormatNode> MakeTree(const std::string &json);

// The current encoder and options of both sides: encoder, resolution, frame rate and quality, then
// encoder, channel, sample rate and quality. −1 where there is none.
QList<int> CurrentChoices(const Orlimo::IOLFormatPreset &preset);

// The current encoders and the current options of every encoder.
QList<int> AllIndices(const Orlimo::IOLFormatPreset &preset);

} // namespace Test
