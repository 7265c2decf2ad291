<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Host::EncoderSettings</name>
    <message>
        <source>as the source</source>
        <translation>igual ao original</translation>
    </message>
    <message>
        <source>left to the encoder</source>
        <translation>a critério do codificador</translation>
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
        <translation>Resolução</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Taxa de quadros</translation>
    </message>
    <message>
        <source>Video quality</source>
        <translation>Qualidade do vídeo</translation>
    </message>
    <message>
        <source>Audio encoder</source>
        <translation>Codificador de áudio</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canais</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Taxa de amostragem</translation>
    </message>
    <message>
        <source>Audio quality</source>
        <translation>Qualidade do áudio</translation>
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
        <translation>As guias e a caixa de pesquisa do seletor de formatos mudarão de idioma na próxima inicialização.</translation>
    </message>
    <message>
        <source>Example Host</source>
        <translation>Aplicativo de exemplo</translation>
    </message>
    <message>
        <source>Choose format…</source>
        <translation>Escolher formato…</translation>
    </message>
    <message>
        <source>Choose at the mouse…</source>
        <translation>Escolher na posição do mouse…</translation>
    </message>
    <message>
        <source>Choose in a dialog…</source>
        <translation>Escolher em uma caixa de diálogo…</translation>
    </message>
    <message>
        <source>Edit settings…</source>
        <translation>Editar configurações…</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Configuração</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>Texto exibido</translation>
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
        <translation>Saída</translation>
    </message>
    <message>
        <source>Output format:</source>
        <translation>Formato de saída:</translation>
    </message>
    <message>
        <source>Choose format…</source>
        <translation>Escolher formato…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
</TS>
