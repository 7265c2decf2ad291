<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>Orlimo::RPFmtEditingDlg</name>
    <message>
        <source>Save as New Preset</source>
        <translation>Salva come nuova preimpostazione</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Nome della preimpostazione</translation>
    </message>
</context>
<context>
    <name>Orlimo::RPFmtSelectionDlg</name>
    <message>
        <source>Custom</source>
        <translation>Personalizzate</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recenti</translation>
    </message>
    <message>
        <source>Search...</source>
        <translation>Cerca…</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Codificatore</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Fotogrammi/s</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Campionamento</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Salva come nuova preimpostazione</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
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
        <translation>Formato file 3GPP</translation>
    </message>
    <message>
        <source>3GPP2 file format</source>
        <translation>Formato file 3GPP2</translation>
    </message>
    <message>
        <source>AVI file format with DIVX</source>
        <translation>Formato file AVI con DIVX</translation>
    </message>
    <message>
        <source>AVI file format with XVID</source>
        <translation>Formato file AVI con XVID</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Audio Interchange File Format</source>
        <translation>Formato file per interscambio audio</translation>
    </message>
    <message>
        <source>Audiovisual Media file format</source>
        <translation>Formato file per contenuti audiovisivi</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Migliore</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzate</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Codificatore</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Fotogrammi/s</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Qualità alta</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bassa</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Qualità bassa</translation>
    </message>
    <message>
        <source>MOV file format with Apple ProRes</source>
        <translation>Formato file MOV con Apple ProRes</translation>
    </message>
    <message>
        <source>MP4 file format</source>
        <translation>Formato file MP4</translation>
    </message>
    <message>
        <source>MP4 file format for iTunes</source>
        <translation>Formato file MP4 per iTunes</translation>
    </message>
    <message>
        <source>MP4 file format with HEVC</source>
        <translation>Formato file MP4 con HEVC</translation>
    </message>
    <message>
        <source>MPEG File format for VCD</source>
        <translation>Formato file MPEG per VCD</translation>
    </message>
    <message>
        <source>MPEG file format for DVD - Video</source>
        <translation>Formato file MPEG per DVD-Video</translation>
    </message>
    <message>
        <source>MPEG file format for SVCD</source>
        <translation>Formato file MPEG per SVCD</translation>
    </message>
    <message>
        <source>MXF file format with Apple ProRes</source>
        <translation>Formato file MXF con Apple ProRes</translation>
    </message>
    <message>
        <source>MXF file format with DNxHD</source>
        <translation>Formato file MXF con DNxHD</translation>
    </message>
    <message>
        <source>Matroska Audio File Format</source>
        <translation>Formato file audio Matroska</translation>
    </message>
    <message>
        <source>Matroska file format</source>
        <translation>Formato file Matroska</translation>
    </message>
    <message>
        <source>Matroska file format with HEVC</source>
        <translation>Formato file Matroska con HEVC</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Medium Quality</source>
        <translation>Qualità media</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recenti</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Originale</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Campionamento</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Salva come nuova preimpostazione</translation>
    </message>
    <message>
        <source>Save the custom settings as a new preset?</source>
        <translation>Salvare le impostazioni personalizzate come nuova preimpostazione?</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Simple Audio File Format</source>
        <translation>Formato file audio semplice</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Waveform Audio File Format</source>
        <translation>Formato file audio Waveform</translation>
    </message>
    <message>
        <source>Web Video</source>
        <translation>Video web</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Nome della preimpostazione</translation>
    </message>
</context>
</TS>
