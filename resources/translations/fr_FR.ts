<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Orlimo::RPFmtEditingDlg</name>
    <message>
        <source>Save as New Preset</source>
        <translation>Enregistrer un nouveau préréglage</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Nom du préréglage</translation>
    </message>
</context>
<context>
    <name>Orlimo::RPFmtSelectionDlg</name>
    <message>
        <source>Custom</source>
        <translation>Personnalisés</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Search...</source>
        <translation>Rechercher…</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Encodeur</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Cadence d’images</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Échantillonnage</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Enregistrer un nouveau préréglage</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
</context>
<context>
    <name>RPObject</name>
    <message>
        <source>3GPP file format</source>
        <translation>Format de fichier 3GPP</translation>
    </message>
    <message>
        <source>3GPP2 file format</source>
        <translation>Format de fichier 3GPP2</translation>
    </message>
    <message>
        <source>AVI file format with DIVX</source>
        <translation>Format de fichier AVI avec DIVX</translation>
    </message>
    <message>
        <source>AVI file format with XVID</source>
        <translation>Format de fichier AVI avec XVID</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Audio Interchange File Format</source>
        <translation>Format de fichier d’échange audio</translation>
    </message>
    <message>
        <source>Audiovisual Media file format</source>
        <translation>Format de fichier multimédia audiovisuel</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Meilleure</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisés</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Encodeur</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Cadence d’images</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haute</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Haute qualité</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Basse</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Basse qualité</translation>
    </message>
    <message>
        <source>MOV file format with Apple ProRes</source>
        <translation>Format de fichier MOV avec Apple ProRes</translation>
    </message>
    <message>
        <source>MP4 file format</source>
        <translation>Format de fichier MP4</translation>
    </message>
    <message>
        <source>MP4 file format for iTunes</source>
        <translation>Format de fichier MP4 pour iTunes</translation>
    </message>
    <message>
        <source>MP4 file format with HEVC</source>
        <translation>Format de fichier MP4 avec HEVC</translation>
    </message>
    <message>
        <source>MPEG File format for VCD</source>
        <translation>Format de fichier MPEG pour VCD</translation>
    </message>
    <message>
        <source>MPEG file format for DVD - Video</source>
        <translation>Format de fichier MPEG pour DVD-Vidéo</translation>
    </message>
    <message>
        <source>MPEG file format for SVCD</source>
        <translation>Format de fichier MPEG pour SVCD</translation>
    </message>
    <message>
        <source>MXF file format with Apple ProRes</source>
        <translation>Format de fichier MXF avec Apple ProRes</translation>
    </message>
    <message>
        <source>MXF file format with DNxHD</source>
        <translation>Format de fichier MXF avec DNxHD</translation>
    </message>
    <message>
        <source>Matroska Audio File Format</source>
        <translation>Format de fichier audio Matroska</translation>
    </message>
    <message>
        <source>Matroska file format</source>
        <translation>Format de fichier Matroska</translation>
    </message>
    <message>
        <source>Matroska file format with HEVC</source>
        <translation>Format de fichier Matroska avec HEVC</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Medium Quality</source>
        <translation>Qualité moyenne</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>D’origine</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Échantillonnage</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Enregistrer un nouveau préréglage</translation>
    </message>
    <message>
        <source>Save the custom settings as a new preset?</source>
        <translation>Enregistrer les réglages personnalisés comme nouveau préréglage&#xa0;?</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Simple Audio File Format</source>
        <translation>Format de fichier audio simple</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Waveform Audio File Format</source>
        <translation>Format de fichier audio Waveform</translation>
    </message>
    <message>
        <source>Web Video</source>
        <translation>Vidéo web</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Nom du préréglage</translation>
    </message>
</context>
</TS>
