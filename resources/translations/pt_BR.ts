<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Orlimo::RPFmtEditingDlg</name>
    <message>
        <source>Save as New Preset</source>
        <translation>Salvar como nova predefinição</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Nome da predefinição</translation>
    </message>
</context>
<context>
    <name>Orlimo::RPFmtSelectionDlg</name>
    <message>
        <source>Custom</source>
        <translation>Personalizadas</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recentes</translation>
    </message>
    <message>
        <source>Search...</source>
        <translation>Pesquisar…</translation>
    </message>
</context>
<context>
    <name>RPFmtEditingDlgClass</name>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canais</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Codificador</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Taxa de quadros</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translatorcomment>Left without a translation on purpose: the label stays in English.</translatorcomment>
        <translation></translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Salvar como nova predefinição</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
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
        <translation>Formato de arquivo 3GPP</translation>
    </message>
    <message>
        <source>3GPP2 file format</source>
        <translation>Formato de arquivo 3GPP2</translation>
    </message>
    <message>
        <source>AVI file format with DIVX</source>
        <translation>Formato de arquivo AVI com DIVX</translation>
    </message>
    <message>
        <source>AVI file format with XVID</source>
        <translation>Formato de arquivo AVI com XVID</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Audio Interchange File Format</source>
        <translation>Formato de arquivo de intercâmbio de áudio</translation>
    </message>
    <message>
        <source>Audiovisual Media file format</source>
        <translation>Formato de arquivo de mídia audiovisual</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Melhor</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canais</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizadas</translation>
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
        <translation>Taxa de quadros</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Alta qualidade</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baixa</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Baixa qualidade</translation>
    </message>
    <message>
        <source>MOV file format with Apple ProRes</source>
        <translation>Formato de arquivo MOV com Apple ProRes</translation>
    </message>
    <message>
        <source>MP4 file format</source>
        <translation>Formato de arquivo MP4</translation>
    </message>
    <message>
        <source>MP4 file format for iTunes</source>
        <translation>Formato de arquivo MP4 para iTunes</translation>
    </message>
    <message>
        <source>MP4 file format with HEVC</source>
        <translation>Formato de arquivo MP4 com HEVC</translation>
    </message>
    <message>
        <source>MPEG File format for VCD</source>
        <translation>Formato de arquivo MPEG para VCD</translation>
    </message>
    <message>
        <source>MPEG file format for DVD - Video</source>
        <translation>Formato de arquivo MPEG para DVD-Video</translation>
    </message>
    <message>
        <source>MPEG file format for SVCD</source>
        <translation>Formato de arquivo MPEG para SVCD</translation>
    </message>
    <message>
        <source>MXF file format with Apple ProRes</source>
        <translation>Formato de arquivo MXF com Apple ProRes</translation>
    </message>
    <message>
        <source>MXF file format with DNxHD</source>
        <translation>Formato de arquivo MXF com DNxHD</translation>
    </message>
    <message>
        <source>Matroska Audio File Format</source>
        <translation>Formato de arquivo de áudio Matroska</translation>
    </message>
    <message>
        <source>Matroska file format</source>
        <translation>Formato de arquivo Matroska</translation>
    </message>
    <message>
        <source>Matroska file format with HEVC</source>
        <translation>Formato de arquivo Matroska com HEVC</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Média</translation>
    </message>
    <message>
        <source>Medium Quality</source>
        <translation>Qualidade média</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recentes</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Taxa de amostragem</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Salvar como nova predefinição</translation>
    </message>
    <message>
        <source>Save the custom settings as a new preset?</source>
        <translation>Salvar as configurações personalizadas como uma nova predefinição?</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Simple Audio File Format</source>
        <translation>Formato de arquivo de áudio simples</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Waveform Audio File Format</source>
        <translation>Formato de arquivo de áudio Waveform</translation>
    </message>
    <message>
        <source>Web Video</source>
        <translation>Vídeo web</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Nome da predefinição</translation>
    </message>
</context>
</TS>
