#pragma once

#include <QByteArray>
#include <QList>

namespace Test {

struct SourceMessage
{
    const char *context;
    const char *text;

    friend bool operator==(const SourceMessage &a, const SourceMessage &b)
    {
        return qstrcmp(a.context, b.context) == 0 && qstrcmp(a.text, b.text) == 0;
    }
};

inline constexpr char dialogContext[] = "Orlimo::RPFmtEditingDlg";
inline constexpr char popupContext[] = "Orlimo::RPFmtSelectionDlg";
inline constexpr char formContext[] = "RPFmtEditingDlgClass";
inline constexpr char formatContext[] = "RPObject";

// The texts of the format library that are translated, in the order of the catalogues.
inline const QList<const char *> formatTexts {
    "3GPP file format",
    "3GPP2 file format",
    "AVI file format with DIVX",
    "AVI file format with XVID",
    "Audio",
    "Audio Interchange File Format",
    "Audiovisual Media file format",
    "Auto",
    "Best",
    "Cancel",
    "Channel",
    "Custom",
    "Device",
    "Encoder",
    "Frame Rate",
    "High",
    "High Quality",
    "Low",
    "Low Quality",
    "MOV file format with Apple ProRes",
    "MP4 file format",
    "MP4 file format for iTunes",
    "MP4 file format with HEVC",
    "MPEG File format for VCD",
    "MPEG file format for DVD - Video",
    "MPEG file format for SVCD",
    "MXF file format with Apple ProRes",
    "MXF file format with DNxHD",
    "Matroska Audio File Format",
    "Matroska file format",
    "Matroska file format with HEVC",
    "Medium",
    "Medium Quality",
    "Quality",
    "Recent",
    "Reset",
    "Resolution",
    "Same as source",
    "Sample Rate",
    "Save",
    "Save as New Preset",
    "Save the custom settings as a new preset?",
    "Search",
    "Settings",
    "Simple Audio File Format",
    "Video",
    "Waveform Audio File Format",
    "Web Video",
    "preset name",
};

// Every message of a catalogue.
inline QList<SourceMessage> CatalogueMessages()
{
    QList<SourceMessage> messages;
    for (const char *text : { "Save as New Preset", "Settings", "preset name" })
        messages.append(SourceMessage { dialogContext, text });
    for (const char *text : { "Custom", "Recent", "Search..." })
        messages.append(SourceMessage { popupContext, text });
    for (const char *text :
         { "Audio", "Cancel", "Channel", "Encoder", "Frame Rate", "Quality", "Reset", "Resolution",
           "Sample Rate", "Save", "Save as New Preset", "Settings", "Video" })
        messages.append(SourceMessage { formContext, text });
    for (const char *text : formatTexts)
        messages.append(SourceMessage { formatContext, text });
    return messages;
}

} // namespace Test
