<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Host::EncoderSettings</name>
    <message>
        <source>as the source</source>
        <translation>元と同じ</translation>
    </message>
    <message>
        <source>left to the encoder</source>
        <translation>エンコーダーに任せる</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Video encoder</source>
        <translation>ビデオエンコーダー</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>Video quality</source>
        <translation>ビデオ品質</translation>
    </message>
    <message>
        <source>Audio encoder</source>
        <translation>オーディオエンコーダー</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>サンプルレート</translation>
    </message>
    <message>
        <source>Audio quality</source>
        <translation>オーディオ品質</translation>
    </message>
</context>
<context>
    <name>HostWindowClass</name>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>The tabs and the search box of the format picker follow at the next start.</source>
        <translation>形式選択ウィンドウのタブと検索欄の言語は、次回の起動時に切り替わります。</translation>
    </message>
    <message>
        <source>Example Host</source>
        <translation>サンプルアプリケーション</translation>
    </message>
    <message>
        <source>Choose format…</source>
        <translation>形式を選択…</translation>
    </message>
    <message>
        <source>Choose at the mouse…</source>
        <translation>ポインターの位置で選択…</translation>
    </message>
    <message>
        <source>Choose in a dialog…</source>
        <translation>ダイアログで選択…</translation>
    </message>
    <message>
        <source>Edit settings…</source>
        <translation>設定を編集…</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定項目</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>表示内容</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>OutputDialogClass</name>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>Output format:</source>
        <translation>出力形式：</translation>
    </message>
    <message>
        <source>Choose format…</source>
        <translation>形式を選択…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
</TS>
