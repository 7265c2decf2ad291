<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>Orlimo::RPFmtEditingDlg</name>
    <message>
        <source>Save as New Preset</source>
        <translation>Guardar como nuevo preajuste</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Nombre del preajuste</translation>
    </message>
</context>
<context>
    <name>Orlimo::RPFmtSelectionDlg</name>
    <message>
        <source>Custom</source>
        <translation>Personalizados</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Search...</source>
        <translation>Buscar…</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Codificador</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Fotogramas/s</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Tasa de muestreo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Guardar como nuevo preajuste</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
</context>
<context>
    <name>RPObject</name>
    <message>
        <source>3GPP file format</source>
        <translation>Formato de archivo 3GPP</translation>
    </message>
    <message>
        <source>3GPP2 file format</source>
        <translation>Formato de archivo 3GPP2</translation>
    </message>
    <message>
        <source>AVI file format with DIVX</source>
        <translation>Formato de archivo AVI con DIVX</translation>
    </message>
    <message>
        <source>AVI file format with XVID</source>
        <translation>Formato de archivo AVI con XVID</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Audio Interchange File Format</source>
        <translation>Formato de archivo de intercambio de audio</translation>
    </message>
    <message>
        <source>Audiovisual Media file format</source>
        <translation>Formato de archivo de medios audiovisuales</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Óptima</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizados</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Codificador</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Fotogramas/s</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Alta calidad</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Baja calidad</translation>
    </message>
    <message>
        <source>MOV file format with Apple ProRes</source>
        <translation>Formato de archivo MOV con Apple ProRes</translation>
    </message>
    <message>
        <source>MP4 file format</source>
        <translation>Formato de archivo MP4</translation>
    </message>
    <message>
        <source>MP4 file format for iTunes</source>
        <translation>Formato de archivo MP4 para iTunes</translation>
    </message>
    <message>
        <source>MP4 file format with HEVC</source>
        <translation>Formato de archivo MP4 con HEVC</translation>
    </message>
    <message>
        <source>MPEG File format for VCD</source>
        <translation>Formato de archivo MPEG para VCD</translation>
    </message>
    <message>
        <source>MPEG file format for DVD - Video</source>
        <translation>Formato de archivo MPEG para DVD-Video</translation>
    </message>
    <message>
        <source>MPEG file format for SVCD</source>
        <translation>Formato de archivo MPEG para SVCD</translation>
    </message>
    <message>
        <source>MXF file format with Apple ProRes</source>
        <translation>Formato de archivo MXF con Apple ProRes</translation>
    </message>
    <message>
        <source>MXF file format with DNxHD</source>
        <translation>Formato de archivo MXF con DNxHD</translation>
    </message>
    <message>
        <source>Matroska Audio File Format</source>
        <translation>Formato de archivo de audio Matroska</translation>
    </message>
    <message>
        <source>Matroska file format</source>
        <translation>Formato de archivo Matroska</translation>
    </message>
    <message>
        <source>Matroska file format with HEVC</source>
        <translation>Formato de archivo Matroska con HEVC</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Medium Quality</source>
        <translation>Calidad media</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Tasa de muestreo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Guardar como nuevo preajuste</translation>
    </message>
    <message>
        <source>Save the custom settings as a new preset?</source>
        <translation>¿Guardar los ajustes personalizados como nuevo preajuste?</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Simple Audio File Format</source>
        <translation>Formato de archivo de audio simple</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Waveform Audio File Format</source>
        <translation>Formato de archivo de audio Waveform</translation>
    </message>
    <message>
        <source>Web Video</source>
        <translation>Vídeo web</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Nombre del preajuste</translation>
    </message>
</context>
</TS>
