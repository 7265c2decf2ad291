<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>Host::EncoderSettings</name>
    <message>
        <source>as the source</source>
        <translation>come l’originale</translation>
    </message>
    <message>
        <source>left to the encoder</source>
        <translation>a scelta del codificatore</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatico</translation>
    </message>
    <message>
        <source>Video encoder</source>
        <translation>Codificatore video</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Fotogrammi/s</translation>
    </message>
    <message>
        <source>Video quality</source>
        <translation>Qualità video</translation>
    </message>
    <message>
        <source>Audio encoder</source>
        <translation>Codificatore audio</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Campionamento</translation>
    </message>
    <message>
        <source>Audio quality</source>
        <translation>Qualità audio</translation>
    </message>
</context>
<context>
    <name>HostWindowClass</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Lingua</translation>
    </message>
    <message>
        <source>The tabs and the search box of the format picker follow at the next start.</source>
        <translation>Le schede e la casella di ricerca del selettore di formati cambieranno lingua al prossimo avvio.</translation>
    </message>
    <message>
        <source>Example Host</source>
        <translation>Applicazione di esempio</translation>
    </message>
    <message>
        <source>Choose format…</source>
        <translation>Scegli formato…</translation>
    </message>
    <message>
        <source>Choose at the mouse…</source>
        <translation>Scegli accanto al puntatore…</translation>
    </message>
    <message>
        <source>Choose in a dialog…</source>
        <translation>Scegli in una finestra di dialogo…</translation>
    </message>
    <message>
        <source>Edit settings…</source>
        <translation>Modifica impostazioni…</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>Testo mostrato</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
</context>
<context>
    <name>OutputDialogClass</name>
    <message>
        <source>Output</source>
        <translation>Formato di uscita</translation>
    </message>
    <message>
        <source>Output format:</source>
        <translation>Formato di uscita:</translation>
    </message>
    <message>
        <source>Choose format…</source>
        <translation>Scegli formato…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
</TS>
