<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Orlimo::RPFmtEditingDlg</name>
    <message>
        <source>Save as New Preset</source>
        <translation>Als neue Vorgabe speichern</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Name der Vorgabe</translation>
    </message>
</context>
<context>
    <name>Orlimo::RPFmtSelectionDlg</name>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Search...</source>
        <translation>Suchen&#xa0;…</translation>
    </message>
</context>
<context>
    <name>RPFmtEditingDlgClass</name>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Encoder</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Als neue Vorgabe speichern</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
</context>
<context>
    <name>RPObject</name>
    <message>
        <source>3GPP file format</source>
        <translation>3GPP-Dateiformat</translation>
    </message>
    <message>
        <source>3GPP2 file format</source>
        <translation>3GPP2-Dateiformat</translation>
    </message>
    <message>
        <source>AVI file format with DIVX</source>
        <translation>AVI-Dateiformat mit DIVX</translation>
    </message>
    <message>
        <source>AVI file format with XVID</source>
        <translation>AVI-Dateiformat mit XVID</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Audio Interchange File Format</source>
        <translation>Audio-Austauschformat</translation>
    </message>
    <message>
        <source>Audiovisual Media file format</source>
        <translation>Dateiformat für audiovisuelle Medien</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Beste</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Encoder</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Hohe Qualität</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Niedrige Qualität</translation>
    </message>
    <message>
        <source>MOV file format with Apple ProRes</source>
        <translation>MOV-Dateiformat mit Apple ProRes</translation>
    </message>
    <message>
        <source>MP4 file format</source>
        <translation>MP4-Dateiformat</translation>
    </message>
    <message>
        <source>MP4 file format for iTunes</source>
        <translation>MP4-Dateiformat für iTunes</translation>
    </message>
    <message>
        <source>MP4 file format with HEVC</source>
        <translation>MP4-Dateiformat mit HEVC</translation>
    </message>
    <message>
        <source>MPEG File format for VCD</source>
        <translation>MPEG-Dateiformat für VCD</translation>
    </message>
    <message>
        <source>MPEG file format for DVD - Video</source>
        <translation>MPEG-Dateiformat für DVD-Video</translation>
    </message>
    <message>
        <source>MPEG file format for SVCD</source>
        <translation>MPEG-Dateiformat für SVCD</translation>
    </message>
    <message>
        <source>MXF file format with Apple ProRes</source>
        <translation>MXF-Dateiformat mit Apple ProRes</translation>
    </message>
    <message>
        <source>MXF file format with DNxHD</source>
        <translation>MXF-Dateiformat mit DNxHD</translation>
    </message>
    <message>
        <source>Matroska Audio File Format</source>
        <translation>Matroska-Audiodateiformat</translation>
    </message>
    <message>
        <source>Matroska file format</source>
        <translation>Matroska-Dateiformat</translation>
    </message>
    <message>
        <source>Matroska file format with HEVC</source>
        <translation>Matroska-Dateiformat mit HEVC</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Medium Quality</source>
        <translation>Mittlere Qualität</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Wie Quelle</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Als neue Vorgabe speichern</translation>
    </message>
    <message>
        <source>Save the custom settings as a new preset?</source>
        <translation>Eigene Einstellungen als neue Vorgabe speichern?</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Simple Audio File Format</source>
        <translation>Einfaches Audiodateiformat</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Waveform Audio File Format</source>
        <translation>Waveform-Audiodateiformat</translation>
    </message>
    <message>
        <source>Web Video</source>
        <translation>Webvideo</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Name der Vorgabe</translation>
    </message>
</context>
</TS>
