<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Host::EncoderSettings</name>
    <message>
        <source>as the source</source>
        <translation>comme l’original</translation>
    </message>
    <message>
        <source>left to the encoder</source>
        <translation>au choix de l’encodeur</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatique</translation>
    </message>
    <message>
        <source>Video encoder</source>
        <translation>Encodeur vidéo</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Cadence d’images</translation>
    </message>
    <message>
        <source>Video quality</source>
        <translation>Qualité vidéo</translation>
    </message>
    <message>
        <source>Audio encoder</source>
        <translation>Encodeur audio</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Échantillonnage</translation>
    </message>
    <message>
        <source>Audio quality</source>
        <translation>Qualité audio</translation>
    </message>
</context>
<context>
    <name>HostWindowClass</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>The tabs and the search box of the format picker follow at the next start.</source>
        <translation>Les onglets et le champ de recherche du sélecteur de formats changeront de langue au prochain démarrage.</translation>
    </message>
    <message>
        <source>Example Host</source>
        <translation>Application d’exemple</translation>
    </message>
    <message>
        <source>Choose format…</source>
        <translation>Choisir le format…</translation>
    </message>
    <message>
        <source>Choose at the mouse…</source>
        <translation>Choisir près du pointeur…</translation>
    </message>
    <message>
        <source>Choose in a dialog…</source>
        <translation>Choisir dans une boîte de dialogue…</translation>
    </message>
    <message>
        <source>Edit settings…</source>
        <translation>Modifier les réglages…</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>Texte affiché</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>OutputDialogClass</name>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Output format:</source>
        <translation>Format de sortie&#xa0;:</translation>
    </message>
    <message>
        <source>Choose format…</source>
        <translation>Choisir le format…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
</TS>
