#include "SampleFormat.h"

#include "IOLCodecPreset.h"
#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLJsonReader.h"
#include "IOLJsonValue.h"

using namespace Orlimo;

namespace Test {

namespace {

const char *const sampleFormat = R"({
  "version": 1,
  "resolutions": {
    "alpha": [ { "text": "Source size" }, { "text": "1920 x 1080" }, { "text": "1280 x 720" } ],
    "beta": [ { "text": "640 x 480" }, { "text": "320 x 240" } ],
    "long": [ { "text": "A picture size as wide as the widest screen that anybody has ever seen" } ]
  },
  "frameRates": {
    "alpha": [ { "text": "Source rate" }, { "text": "25 fps" }, { "text": "50 fps" },
               { "text": "60 fps" } ],
    "beta": [ { "text": "15 fps" }, { "text": "30 fps" } ],
    "long": [ { "text": "As many pictures in a second as the eye of an eagle can tell apart" } ]
  },
  "qualities": {
    "alpha": [ { "text": "Best" }, { "text": "Good" } ],
    "beta": [ { "text": "Large" }, { "text": "Small" }, { "text": "Tiny" } ],
    "gamma": [ { "text": "Loud" }, { "text": "Quiet" } ],
    "delta": [ { "text": "High" }, { "text": "Middle" }, { "text": "Low" } ],
    "long": [ { "text": "So good that nobody could tell it from the original recording" } ]
  },
  "channels": {
    "gamma": [ { "text": "Mono" }, { "text": "Stereo" }, { "text": "Surround" } ],
    "delta": [ { "text": "One" }, { "text": "Two" } ],
    "long": [ { "text": "One channel for every loudspeaker in the largest of all concert halls" } ]
  },
  "sampleRates": {
    "gamma": [ { "text": "44100 Hz" }, { "text": "48000 Hz" } ],
    "delta": [ { "text": "8000 Hz" }, { "text": "16000 Hz" }, { "text": "32000 Hz" } ],
    "long": [ { "text": "More samples in a second than the ear of any bat could ever make use of" } ]
  },
  "encoders": {
    "video-auto": { "kind": "video", "name": "Auto video", "auto": true },
    "alpha": { "kind": "video", "name": "Alpha",
               "resolutions": "alpha", "frameRates": "alpha", "qualities": "alpha",
               "resolution": 1, "frameRate": 2, "quality": 0 },
    "beta": { "kind": "video", "name": "Beta",
              "resolutions": "beta", "frameRates": "beta", "qualities": "beta",
              "resolution": 0, "frameRate": 1, "quality": 2 },
    "long-video": { "kind": "video", "name": "The video encoder whose name went on and on and on",
                    "resolutions": "long", "frameRates": "long", "qualities": "long" },
    "audio-auto": { "kind": "audio", "name": "Auto audio", "auto": true },
    "gamma": { "kind": "audio", "name": "Gamma",
               "channels": "gamma", "sampleRates": "gamma", "qualities": "gamma",
               "channel": 1, "sampleRate": 1, "quality": 0 },
    "delta": { "kind": "audio", "name": "Delta",
               "channels": "delta", "sampleRates": "delta", "qualities": "delta",
               "channel": 0, "sampleRate": 2, "quality": 1 },
    "long-audio": { "kind": "audio", "name": "The audio encoder whose name went on and on and on",
                    "channels": "long", "sampleRates": "long", "qualities": "long" }
  },
  "encoderSets": {
    "video": [ "video-auto", "alpha", "beta" ],
    "audio": [ "audio-auto", "gamma", "delta" ],
    "long-video": [ "long-video" ],
    "long-audio": [ "long-audio" ]
  },
  "root": { "name": "MP4", "description": "MP4 Format", "faceId": 11, "presets": [
    { "name": "HD", "description": "High definition", "format": "MP4", "faceId": 12,
      "video": { "encoders": "video", "current": 1 },
      "audio": { "encoders": "audio", "current": 2 } },
    { "name": "Automatic", "format": "MP4",
      "video": { "encoders": "video", "current": 0 },
      "audio": { "encoders": "audio", "current": 0 } },
    { "name": "Audio only", "format": "MP4",
      "audio": { "encoders": "audio", "current": 1 } },
    { "name": "None chosen", "format": "MP4",
      "video": { "encoders": "video", "current": -1 },
      "audio": { "encoders": "audio", "current": -1 } },
    { "name": "Unset", "format": "MP4",
      "video": { "encoders": "video", "current": 1, "choices": [
        { "encoder": 1, "resolution": -1, "frameRate": -1, "quality": -1 } ] },
      "audio": { "encoders": "audio", "current": 1, "choices": [
        { "encoder": 1, "channel": -1, "sampleRate": -1, "quality": -1 } ] } },
    { "name": "Long", "format": "MP4",
      "video": { "encoders": "long-video", "current": 0 },
      "audio": { "encoders": "long-audio", "current": 0 } }
  ] }
})";

const char *const oneOfEach = R"({
  "version": 1,
  "resolutions": { "sizes": [ { "text": "Text" } ], "none": [] },
  "frameRates": { "rates": [ { "text": "Text" } ], "none": [] },
  "qualities": { "pictures": [ { "text": "Text" } ], "sounds": [ { "text": "Text" } ], "none": [] },
  "channels": { "speakers": [ { "text": "Text" } ], "none": [] },
  "sampleRates": { "samples": [ { "text": "Text" } ], "none": [] },
  "encoders": {
    "video": { "resolutions": "sizes", "frameRates": "rates", "qualities": "pictures",
               "kind": "video", "name": "Text" },
    "audio": { "channels": "speakers", "sampleRates": "samples", "qualities": "sounds",
               "kind": "audio", "name": "Text" }
  },
  "encoderSets": { "video": [ "video" ], "audio": [ "audio" ] },
  "root": { "name": "Format", "presets": [
    { "name": "Preset", "faceId": 12,
      "video": { "encoders": "video", "current": 0 },
      "audio": { "encoders": "audio", "current": 0 } }
  ] }
})";

QList<int> VideoOptions(const IOLCodecPreset *codec)
{
    if (!codec)
        return { -1, -1, -1 };
    return { codec->CurrentResolutionIndex(), codec->CurrentFrameRateIndex(),
             codec->CurrentQualityIndex() };
}

QList<int> AudioOptions(const IOLCodecPreset *codec)
{
    if (!codec)
        return { -1, -1, -1 };
    return { codec->CurrentChannelIndex(), codec->CurrentSampleRateIndex(),
             codec->CurrentQualityIndex() };
}

} // namespace

std::shared_ptr<IOLFormatNode> MakeSampleFormat()
{
    return MakeTree(sampleFormat);
}

std::shared_ptr<IOLFormatPreset> MakeSamplePreset(const std::string &name)
{
    return MakeSampleFormat()->FindPreset(name)->Clone();
}

QByteArray OneOfEachDescription()
{
    return oneOfEach;
}

std::shared_ptr<IOLFormatPreset> MakePresetOf(const QByteArray &description)
{
    return MakeTree(description.toStdString())->PresetAt(0);
}

std::shared_ptr<IOLFormatNode> MakeTree(const std::string &json)
{
    const std::shared_ptr<const IOLJsonValue> value = IOLJsonReader::ReadJsonString(json, nullptr);
    return IOLFormatNode::MallocFormatNode(value);
}

QList<int> CurrentChoices(const IOLFormatPreset &preset)
{
    return QList<int> { preset.CurrentVideoCodecIndex() }
    + VideoOptions(preset.CurrentVideoCodec().get())
            + QList<int> { preset.CurrentAudioCodecIndex() }
    + AudioOptions(preset.CurrentAudioCodec().get());
}

QList<int> AllIndices(const IOLFormatPreset &preset)
{
    QList<int> indices { preset.CurrentVideoCodecIndex(), preset.CurrentAudioCodecIndex() };
    for (int i = 0; i < preset.VideoCodecCount(); ++i)
        indices += VideoOptions(preset.VideoCodecAt(i).get());
    for (int i = 0; i < preset.AudioCodecCount(); ++i)
        indices += AudioOptions(preset.AudioCodecAt(i).get());
    return indices;
}

} // namespace Test
