<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>Host::EncoderSettings</name>
    <message>
        <source>as the source</source>
        <translation>igual que el original</translation>
    </message>
    <message>
        <source>left to the encoder</source>
        <translation>a elección del codificador</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automático</translation>
    </message>
    <message>
        <source>Video encoder</source>
        <translation>Codificador de vídeo</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Fotogramas/s</translation>
    </message>
    <message>
        <source>Video quality</source>
        <translation>Calidad de vídeo</translation>
    </message>
    <message>
        <source>Audio encoder</source>
        <translation>Codificador de audio</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Tasa de muestreo</translation>
    </message>
    <message>
        <source>Audio quality</source>
        <translation>Calidad de audio</translation>
    </message>
</context>
<context>
    <name>HostWindowClass</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>The tabs and the search box of the format picker follow at the next start.</source>
        <translation>Las pestañas y el cuadro de búsqueda del selector de formatos cambiarán de idioma al reiniciar la aplicación.</translation>
    </message>
    <message>
        <source>Example Host</source>
        <translation>Aplicación de ejemplo</translation>
    </message>
    <message>
        <source>Choose format…</source>
        <translation>Elegir formato…</translation>
    </message>
    <message>
        <source>Choose at the mouse…</source>
        <translation>Elegir junto al puntero…</translation>
    </message>
    <message>
        <source>Choose in a dialog…</source>
        <translation>Elegir en un cuadro de diálogo…</translation>
    </message>
    <message>
        <source>Edit settings…</source>
        <translation>Editar ajustes…</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>Texto mostrado</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
</context>
<context>
    <name>OutputDialogClass</name>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Output format:</source>
        <translation>Formato de salida:</translation>
    </message>
    <message>
        <source>Choose format…</source>
        <translation>Elegir formato…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
</TS>
