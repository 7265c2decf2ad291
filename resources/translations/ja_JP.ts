<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Orlimo::RPFmtEditingDlg</name>
    <message>
        <source>Save as New Preset</source>
        <translation>新規プリセットとして保存</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>プリセット名</translation>
    </message>
</context>
<context>
    <name>Orlimo::RPFmtSelectionDlg</name>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近使った項目</translation>
    </message>
    <message>
        <source>Search...</source>
        <translation>検索…</translation>
    </message>
</context>
<context>
    <name>RPFmtEditingDlgClass</name>
    <message>
        <source>Audio</source>
        <translation>オーディオ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>エンコーダー</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>サンプルレート</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>新規プリセットとして保存</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>ビデオ</translation>
    </message>
</context>
<context>
    <name>RPObject</name>
    <message>
        <source>3GPP file format</source>
        <translation>3GPP ファイル形式</translation>
    </message>
    <message>
        <source>3GPP2 file format</source>
        <translation>3GPP2 ファイル形式</translation>
    </message>
    <message>
        <source>AVI file format with DIVX</source>
        <translation>DIVX を使用した AVI ファイル形式</translation>
    </message>
    <message>
        <source>AVI file format with XVID</source>
        <translation>XVID を使用した AVI ファイル形式</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>オーディオ</translation>
    </message>
    <message>
        <source>Audio Interchange File Format</source>
        <translation>オーディオ交換ファイル形式</translation>
    </message>
    <message>
        <source>Audiovisual Media file format</source>
        <translation>オーディオビジュアルメディアファイル形式</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>エンコーダー</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>高品質</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>低品質</translation>
    </message>
    <message>
        <source>MOV file format with Apple ProRes</source>
        <translation>Apple ProRes を使用した MOV ファイル形式</translation>
    </message>
    <message>
        <source>MP4 file format</source>
        <translation>MP4 ファイル形式</translation>
    </message>
    <message>
        <source>MP4 file format for iTunes</source>
        <translation>iTunes 用 MP4 ファイル形式</translation>
    </message>
    <message>
        <source>MP4 file format with HEVC</source>
        <translation>HEVC を使用した MP4 ファイル形式</translation>
    </message>
    <message>
        <source>MPEG File format for VCD</source>
        <translation>VCD 用 MPEG ファイル形式</translation>
    </message>
    <message>
        <source>MPEG file format for DVD - Video</source>
        <translation>DVD-Video 用 MPEG ファイル形式</translation>
    </message>
    <message>
        <source>MPEG file format for SVCD</source>
        <translation>SVCD 用 MPEG ファイル形式</translation>
    </message>
    <message>
        <source>MXF file format with Apple ProRes</source>
        <translation>Apple ProRes を使用した MXF ファイル形式</translation>
    </message>
    <message>
        <source>MXF file format with DNxHD</source>
        <translation>DNxHD を使用した MXF ファイル形式</translation>
    </message>
    <message>
        <source>Matroska Audio File Format</source>
        <translation>Matroska オーディオファイル形式</translation>
    </message>
    <message>
        <source>Matroska file format</source>
        <translation>Matroska ファイル形式</translation>
    </message>
    <message>
        <source>Matroska file format with HEVC</source>
        <translation>HEVC を使用した Matroska ファイル形式</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Medium Quality</source>
        <translation>中品質</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近使った項目</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>元と同じ</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>サンプルレート</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>新規プリセットとして保存</translation>
    </message>
    <message>
        <source>Save the custom settings as a new preset?</source>
        <translation>カスタム設定を新規プリセットとして保存しますか？</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Simple Audio File Format</source>
        <translation>シンプルなオーディオファイル形式</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>Waveform Audio File Format</source>
        <translation>Waveform オーディオファイル形式</translation>
    </message>
    <message>
        <source>Web Video</source>
        <translation>Web ビデオ</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>プリセット名</translation>
    </message>
</context>
</TS>
