<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Host::EncoderSettings</name>
    <message>
        <source>as the source</source>
        <translation>wie die Quelle</translation>
    </message>
    <message>
        <source>left to the encoder</source>
        <translation>vom Encoder bestimmt</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>Video encoder</source>
        <translation>Video-Encoder</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Video quality</source>
        <translation>Videoqualität</translation>
    </message>
    <message>
        <source>Audio encoder</source>
        <translation>Audio-Encoder</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Audio quality</source>
        <translation>Audioqualität</translation>
    </message>
</context>
<context>
    <name>HostWindowClass</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>The tabs and the search box of the format picker follow at the next start.</source>
        <translation>Die Registerkarten und das Suchfeld der Formatauswahl werden erst beim nächsten Start umgestellt.</translation>
    </message>
    <message>
        <source>Example Host</source>
        <translation>Beispielanwendung</translation>
    </message>
    <message>
        <source>Choose format…</source>
        <translation>Format wählen&#xa0;…</translation>
    </message>
    <message>
        <source>Choose at the mouse…</source>
        <translation>Am Mauszeiger wählen&#xa0;…</translation>
    </message>
    <message>
        <source>Choose in a dialog…</source>
        <translation>Im Dialog wählen&#xa0;…</translation>
    </message>
    <message>
        <source>Edit settings…</source>
        <translation>Einstellungen bearbeiten&#xa0;…</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>Angezeigt als</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>OutputDialogClass</name>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Output format:</source>
        <translation>Ausgabeformat:</translation>
    </message>
    <message>
        <source>Choose format…</source>
        <translation>Format wählen&#xa0;…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
</TS>
