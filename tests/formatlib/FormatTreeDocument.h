#pragma once

#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"
#include "IOLJsonReader.h"
#include "IOLJsonValue.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

#include <memory>

namespace Test {

inline QJsonValue Json(const QByteArray &text)
{
    const auto value = Orlimo::IOLJsonReader::ReadJsonString(text.toStdString(), nullptr);
    return value ? value->ToQJsonValue() : QJsonValue(QJsonValue::Undefined);
}

// A document with every kind of table and member that the layout has. Its first preset has an
// encoder of each kind that is not the first of its set.
inline QJsonObject SampleDocument()
{
    static const QJsonObject document = Json(R"json({
        "version": 1,
        "resolutions": { "hd": [ { "text": "Same as source" },
                                 { "text": "1920 x 1080", "width": 1920, "height": 1080 } ] },
        "frameRates": { "film": [ { "text": "Same as source" },
                                  { "text": "23.976 fps", "numerator": 24000, "denominator": 1001 },
                                  { "text": "25 fps", "numerator": 25, "denominator": 1 } ] },
        "qualities": { "crf": [ { "text": "Best", "crf": 0 }, { "text": "High", "crf": 20 },
                                { "text": "Low", "crf": 28 } ],
                       "kbps": [ { "text": "192 kbps", "bitRate": 192000 } ],
                       "pcm": [ { "text": "16 bit", "bitDepth": 16 }, { "text": "Any depth" } ],
                       "none": [] },
        "channels": { "two": [ { "text": "Same as source" }, { "text": "Stereo", "channels": 2 } ] },
        "sampleRates": { "48k": [ { "text": "Same as source" },
                                  { "text": "48000 Hz", "hertz": 48000 } ] },
        "encoders": {
            "video-auto": { "kind": "video", "name": "Auto", "auto": true },
            "h264": { "kind": "video", "name": "H.264",
                      "resolutions": "hd", "frameRates": "film", "qualities": "crf",
                      "resolution": 1, "frameRate": 2, "quality": -1 },
            "bare": { "kind": "video", "name": "Bare" },
            "audio-auto": { "kind": "audio", "name": "Auto", "auto": true },
            "aac": { "kind": "audio", "name": "AAC", "auto": false,
                     "channels": "two", "sampleRates": "48k", "qualities": "kbps",
                     "channel": 1, "sampleRate": 1 },
            "pcm": { "kind": "audio", "name": "PCM", "qualities": "pcm" }
        },
        "encoderSets": { "video": [ "video-auto", "h264", "bare" ],
                         "audio": [ "audio-auto", "aac", "pcm" ], "empty": [] },
        "root": {
            "name": "Formats", "description": "All formats", "faceId": 5,
            "children": [
                { "name": "Video", "faceId": 3,
                  "children": [
                    { "name": "MP4", "description": "MP4 file format", "faceId": 1001,
                      "presets": [
                        { "name": "HD 1080P", "description": "H.264, 1920 x 1080", "faceId": 1001,
                          "format": "MP4",
                          "video": { "encoders": "video", "current": 1,
                                     "choices": [ { "encoder": 1, "frameRate": 1, "quality": 2 } ] },
                          "audio": { "encoders": "audio", "current": 2,
                                     "choices": [ { "encoder": 2, "quality": 1 },
                                                  { "encoder": 1, "channel": 0, "sampleRate": -1,
                                                    "quality": -1 } ] } },
                        { "name": "Same as source", "video": { "encoders": "video" },
                          "audio": { "encoders": "empty" } }
                      ] } ] },
                { "name": "Audio" }
            ]
        }
    })json")
                                                .toObject();
    return document;
}

inline std::shared_ptr<Orlimo::IOLFormatNode> Load(const QJsonValue &document)
{
    return Orlimo::IOLFormatNode::MallocFormatNode(Orlimo::IOLJsonValue::MallocJsonValue(document));
}

// The preset "HD 1080P" of a tree made from SampleDocument().
inline std::shared_ptr<Orlimo::IOLFormatPreset> SamplePreset()
{
    return Load(SampleDocument())->FirstChild()->FirstChild()->FirstFormatPreset();
}

// Returns document with value at the place that steps lead to; an undefined value removes it, and
// the index behind the last element of an array appends.
inline QJsonValue Changed(const QJsonValue &document, const QStringList &steps,
                          const QJsonValue &value)
{
    if (steps.isEmpty())
        return value;
    const QString &step = steps.first();
    if (document.isArray()) {
        QJsonArray array = document.toArray();
        const int index = step.toInt();
        const QJsonValue element = Changed(array.at(index), steps.mid(1), value);
        if (index < array.size())
            array.replace(index, element);
        else
            array.append(element);
        return array;
    }
    QJsonObject object = document.toObject();
    object.insert(step, Changed(object.value(step), steps.mid(1), value));
    return object;
}

} // namespace Test
