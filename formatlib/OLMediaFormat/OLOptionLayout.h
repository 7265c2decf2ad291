#pragma once

#include "OLCodecTables.h"
#include "OLJsonMembers.h"

#include <QJsonObject>

#include <limits>

namespace Orlimo {

// How each type of option stands in a document: the member that names its lists, the member that
// names an index in such a list, and its own members.
template<class Option>
struct OLOptionLayout;

inline constexpr int OLMaximumInteger = std::numeric_limits<int>::max();

template<>
struct OLOptionLayout<OLResolution>
{
    static constexpr QLatin1StringView lists { "resolutions" };
    static constexpr QLatin1StringView index { "resolution" };
    static constexpr QLatin1StringView width { "width" };
    static constexpr QLatin1StringView height { "height" };

    static void Read(OLJsonMembers &members, OLResolution &option)
    {
        if (!members.Has(width) && !members.Has(height))
            return;
        option.width = members.Integer(width, 1, OLMaximumInteger);
        option.height = members.Integer(height, 1, OLMaximumInteger);
    }

    static void Write(const OLResolution &option, QJsonObject &object)
    {
        if (option.width == 0)
            return;
        object.insert(width, option.width);
        object.insert(height, option.height);
    }
};

template<>
struct OLOptionLayout<OLFrameRate>
{
    static constexpr QLatin1StringView lists { "frameRates" };
    static constexpr QLatin1StringView index { "frameRate" };
    static constexpr QLatin1StringView numerator { "numerator" };
    static constexpr QLatin1StringView denominator { "denominator" };

    static void Read(OLJsonMembers &members, OLFrameRate &option)
    {
        if (!members.Has(numerator) && !members.Has(denominator))
            return;
        option.numerator = members.Integer(numerator, 1, OLMaximumInteger);
        option.denominator = members.Integer(denominator, 1, OLMaximumInteger);
    }

    static void Write(const OLFrameRate &option, QJsonObject &object)
    {
        if (option.numerator == 0)
            return;
        object.insert(numerator, option.numerator);
        object.insert(denominator, option.denominator);
    }
};

template<>
struct OLOptionLayout<OLQuality>
{
    static constexpr QLatin1StringView lists { "qualities" };
    static constexpr QLatin1StringView index { "quality" };
    static constexpr QLatin1StringView constantRateFactor { "crf" };
    static constexpr QLatin1StringView bitRate { "bitRate" };
    static constexpr QLatin1StringView bitDepth { "bitDepth" };

    static void Read(OLJsonMembers &members, OLQuality &option)
    {
        option.constantRateFactor = members.IntegerOr(constantRateFactor, -1, 0, OLMaximumInteger);
        option.bitRate = members.IntegerOr(bitRate, 0, 1, OLMaximumInteger);
        option.bitDepth = members.IntegerOr(bitDepth, 0, 1, OLMaximumInteger);
        if ((option.constantRateFactor >= 0) + (option.bitRate > 0) + (option.bitDepth > 0) > 1)
            members.Path().Report("a quality has at most one of crf, bitRate and bitDepth");
    }

    static void Write(const OLQuality &option, QJsonObject &object)
    {
        if (option.constantRateFactor >= 0)
            object.insert(constantRateFactor, option.constantRateFactor);
        if (option.bitRate > 0)
            object.insert(bitRate, option.bitRate);
        if (option.bitDepth > 0)
            object.insert(bitDepth, option.bitDepth);
    }
};

template<>
struct OLOptionLayout<OLChannel>
{
    static constexpr QLatin1StringView lists { "channels" };
    static constexpr QLatin1StringView index { "channel" };

    static void Read(OLJsonMembers &members, OLChannel &option)
    {
        option.channels = members.IntegerOr(lists, 0, 1, OLMaximumInteger);
    }

    static void Write(const OLChannel &option, QJsonObject &object)
    {
        if (option.channels > 0)
            object.insert(lists, option.channels);
    }
};

template<>
struct OLOptionLayout<OLSampleRate>
{
    static constexpr QLatin1StringView lists { "sampleRates" };
    static constexpr QLatin1StringView index { "sampleRate" };
    static constexpr QLatin1StringView hertz { "hertz" };

    static void Read(OLJsonMembers &members, OLSampleRate &option)
    {
        option.hertz = members.IntegerOr(hertz, 0, 1, OLMaximumInteger);
    }

    static void Write(const OLSampleRate &option, QJsonObject &object)
    {
        if (option.hertz > 0)
            object.insert(hertz, option.hertz);
    }
};

// Calls handle.template operator()<Option>() for every type of option that an encoder of the given
// kind has lists of. Qualities come first: where an object says anything, it is mostly that.
template<class Handler>
void OLForEachOptionType(OLEncoderKind kind, Handler handle)
{
    handle.template operator()<OLQuality>();
    if (kind == OLEncoderKind::Video) {
        handle.template operator()<OLResolution>();
        handle.template operator()<OLFrameRate>();
    } else {
        handle.template operator()<OLChannel>();
        handle.template operator()<OLSampleRate>();
    }
}

inline QLatin1StringView OLKindName(OLEncoderKind kind)
{
    return QLatin1StringView(kind == OLEncoderKind::Video ? "video" : "audio");
}

} // namespace Orlimo
