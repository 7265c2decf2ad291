#include "TestCase.h"

#include "CatalogueMessages.h"
#include "Languages.h"
#include "TranslationSource.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;
using namespace Test;

namespace {

const QString sourceFolder = u"" ORLIMO_SOURCE_DIR ""_s;
const QString hostFolder = sourceFolder + u"/examples/host"_s;

using KeySet = QSet<MessageKey>;

KeySet KeysOf(const TranslationMap &messages)
{
    return { messages.keyBegin(), messages.keyEnd() };
}

// What the code in these folders asks for, as lupdate collects it into a scratch file.
KeySet AskedFor(const QStringList &folders)
{
    const QTemporaryDir scratch;
    const QString file = scratch.filePath(u"asked.ts"_s);
    QProcess lupdate;
    lupdate.start(u"" ORLIMO_LUPDATE ""_s,
                  QStringList { u"-silent"_s } + folders + QStringList { u"-ts"_s, file });
    if (!lupdate.waitForFinished() || lupdate.exitCode() != 0)
        qFatal("lupdate has failed: %s", lupdate.readAllStandardError().constData());
    return KeysOf(ReadTranslationSource(file));
}

KeySet AskedForByTheLibrary()
{
    QStringList folders;
    for (const auto &folder :
         { u"popup"_s, u"datasource"_s, u"widgets"_s, u"editing"_s, u"resources"_s })
        folders += sourceFolder + u'/' + folder;
    return AskedFor(folders);
}

// Forms hold placeholders: titles of windows without a title bar, and pages that are replaced.
const KeySet placeholders {
    { u"RPFmtItemDataWdgClass"_s, u"RPFmtItemDataWdg"_s },
    { u"RPFmtNodeWdgClass"_s, u"RPFmtNodeWdg"_s },
    { u"RPFmtRecentListWdgClass"_s, u"RPFmtRecentListWdg"_s },
    { u"RPFmtSelectionDlgClass"_s, u"RPFmtSelectionDlg"_s },
    { u"RPFmtSelectionDlgClass"_s, u"Tab 1"_s },
    { u"RPFmtSelectionDlgClass"_s, u"Tab 2"_s },
};

KeySet CatalogueKeys()
{
    KeySet keys;
    for (const SourceMessage &message : CatalogueMessages())
        keys.insert({ QString::fromUtf8(message.context), QString::fromUtf8(message.text) });
    return keys;
}

QByteArray Listed(const KeySet &keys)
{
    QByteArray list;
    for (const auto &[context, text] : keys)
        list += '\n' + context.toUtf8() + ": " + text.toUtf8();
    return list;
}

// The members whose values the picker shows.
bool IsShown(const QString &member)
{
    static const QSet<QString> shown { u"name"_s, u"description"_s, u"text"_s };
    return shown.contains(member);
}

void CollectTexts(const QJsonValue &value, QSet<QString> &texts)
{
    for (const QJsonValue element : value.toArray())
        CollectTexts(element, texts);
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (member->isString() && IsShown(member.key()))
            texts.insert(member->toString());
        CollectTexts(*member, texts);
    }
}

QSet<QString> DescriptionTexts(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    QSet<QString> texts;
    CollectTexts(QJsonDocument::fromJson(file.readAll()).object(), texts);
    return texts;
}

// The same in every language: encoders, containers, devices, services, standards and units.
const QSet<QString> properNames {
    u"3G2"_s,
    u"3GP"_s,
    u"422"_s,
    u"4444"_s,
    u"4K"_s,
    u"754"_s,
    u"8K"_s,
    u"A-law"_s,
    u"AAC"_s,
    u"AC-3"_s,
    u"AC3"_s,
    u"ADTS"_s,
    u"AIFF"_s,
    u"ALAC"_s,
    u"AMR"_s,
    u"AMR-NB"_s,
    u"AMR-WB"_s,
    u"ASF"_s,
    u"AU"_s,
    u"AV1"_s,
    u"AVCHD"_s,
    u"AVI"_s,
    u"Android"_s,
    u"Apple"_s,
    u"Blu-ray"_s,
    u"CAF"_s,
    u"Chromecast"_s,
    u"DIVX"_s,
    u"DNxHD"_s,
    u"DTS"_s,
    u"DV"_s,
    u"DVD"_s,
    u"Dailymotion"_s,
    u"DivX"_s,
    u"E-AC-3"_s,
    u"EAC3"_s,
    u"F4V"_s,
    u"FLAC"_s,
    u"FLV"_s,
    u"Facebook"_s,
    u"Fire"_s,
    u"Flash"_s,
    u"G.711"_s,
    u"GIF"_s,
    u"Galaxy"_s,
    u"Google"_s,
    u"H.263"_s,
    u"H.264"_s,
    u"HD"_s,
    u"HD422"_s,
    u"HEVC"_s,
    u"HQ"_s,
    u"IEEE"_s,
    u"Instagram"_s,
    u"Kindle"_s,
    u"LT"_s,
    u"LinkedIn"_s,
    u"M2TS"_s,
    u"M4A"_s,
    u"M4B"_s,
    u"M4R"_s,
    u"M4V"_s,
    u"MKA"_s,
    u"MKV"_s,
    u"MOV"_s,
    u"MP2"_s,
    u"MP3"_s,
    u"MP4"_s,
    u"MPEG-1"_s,
    u"MPEG-2"_s,
    u"MPEG-4"_s,
    u"MPG"_s,
    u"MXF"_s,
    u"Matroska"_s,
    u"NTSC"_s,
    u"OGG"_s,
    u"OGV"_s,
    u"OPUS"_s,
    u"Ogg"_s,
    u"Opus"_s,
    u"PAL"_s,
    u"PCM"_s,
    u"PS"_s,
    u"PSP"_s,
    u"Pixel"_s,
    u"PlayStation"_s,
    u"ProRes"_s,
    u"Proxy"_s,
    u"QHD"_s,
    u"QuickTime"_s,
    u"Roku"_s,
    u"SD"_s,
    u"SVCD"_s,
    u"Samsung"_s,
    u"Sorenson"_s,
    u"TS"_s,
    u"TV"_s,
    u"Theora"_s,
    u"TikTok"_s,
    u"UHD"_s,
    u"VCD"_s,
    u"VP8"_s,
    u"VP9"_s,
    u"Vimeo"_s,
    u"Vita"_s,
    u"Vorbis"_s,
    u"WAV"_s,
    u"WMA"_s,
    u"WMV"_s,
    u"WV"_s,
    u"WavPack"_s,
    u"WebM"_s,
    u"X"_s,
    u"XDCAM"_s,
    u"XQ"_s,
    u"XVID"_s,
    u"Xbox"_s,
    u"Xvid"_s,
    u"YouTube"_s,
    u"iPad"_s,
    u"iPhone"_s,
    u"µ-law"_s,
    // of several words
    u"Flash Video"_s,
    u"Windows Media Audio"_s,
    u"Windows Media Video"_s,
    u"Xbox One"_s,
    u"Xbox Series X"_s,
    u"Chromecast Ultra"_s,
    // units
    u"Hz"_s,
    u"Mbps"_s,
    u"bit"_s,
    u"fps"_s,
    u"kbps"_s,
    u"x"_s,
};

bool IsNumber(const QString &word)
{
    static const QRegularExpression number(u"^[0-9]+(\\.[0-9]+)?P?(x[0-9]+)?$"_s);
    return number.match(word).hasMatch();
}

// Whether the text is made of proper names and numbers alone.
bool IsTheSameInEveryLanguage(QString text)
{
    for (const QString &name : properNames) {
        if (name.contains(u' '))
            text.replace(name, QString());
    }
    static const QRegularExpression separators(u"[ ,/()]+"_s);
    const QStringList words = text.split(separators, Qt::SkipEmptyParts);
    return std::all_of(words.begin(), words.end(), [](const QString &word) {
        return IsNumber(word) || properNames.contains(word);
    });
}

} // namespace

class tst_TranslationSources : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theCodeAsksForTheMessagesOfTheCatalogues()
    {
        const KeySet expected = CatalogueKeys() + placeholders;
        const KeySet asked = AskedForByTheLibrary();
        QVERIFY2(asked == expected,
                 "missing:" + Listed(asked - expected) + "\nstale:" + Listed(expected - asked));
    }

    void theSourcesHoldWhatTheCodeAsksFor_data() { AddLanguageRows(CatalogueLanguages()); }

    void theSourcesHoldWhatTheCodeAsksFor()
    {
        QFETCH(const int, language);
        const QString locale = CatalogueLanguages().at(language).locale;
        const TranslationMap source = ReadTranslationSource(
                sourceFolder + u"/resources/translations/%1.ts"_s.arg(locale));
        QCOMPARE(KeysOf(source), CatalogueKeys());
        for (const SourceTranslation &translation : source)
            QCOMPARE(translation.type, QString());
    }

    void theHostsSourcesHoldWhatTheHostAsksFor_data() { AddLanguageRows(CatalogueLanguages()); }

    void theHostsSourcesHoldWhatTheHostAsksFor()
    {
        QFETCH(const int, language);
        const QString locale = CatalogueLanguages().at(language).locale;
        const TranslationMap source = ReadTranslationSource(hostFolder
                                                            + u"/translations/%1.ts"_s.arg(locale));
        const KeySet asked = AskedFor({ hostFolder });
        const KeySet held = KeysOf(source);
        QVERIFY2(asked == held,
                 "missing:" + Listed(asked - held) + "\nstale:" + Listed(held - asked));
        for (const SourceTranslation &translation : source) {
            QCOMPARE(translation.type, QString());
            QVERIFY(!translation.text.isEmpty());
        }
    }

    void formatDescriptionsHaveTranslatedTextsAndProperNames_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("the example's") << hostFolder + u"/formats/formats.json"_s;
        QTest::newRow("the usual encoders")
                << sourceFolder + u"/formatlib/OLMediaFormat/usual_encoders.json"_s;
    }

    void formatDescriptionsHaveTranslatedTextsAndProperNames()
    {
        QFETCH(const QString, path);
        QSet<QString> texts = DescriptionTexts(path);
        QVERIFY(texts.contains(u"Same as source"_s));
        texts.remove(u"Formats"_s); // the root, which nobody sees
        for (const char *text : formatTexts)
            texts.remove(QString::fromUtf8(text));
        for (const QString &text : std::as_const(texts))
            QVERIFY2(IsTheSameInEveryLanguage(text), qPrintable(text));
    }
};

ORLIMO_TEST_MAIN(tst_TranslationSources)

#include "tst_translationsources.moc"
