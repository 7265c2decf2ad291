#include "TestCase.h"

#include "CatalogueMessages.h"
#include "Languages.h"
#include "OLFormatText.h"
#include "RPFmtEditingDlg.h"
#include "RPFmtSelectionDlg.h"
#include "TranslationSource.h"

#include <QDataStream>
#include <QDir>
#include <QResource>

using namespace Qt::StringLiterals;
using namespace Test;

namespace {

constexpr int magicSize = 16;
constexpr quint8 messagesSection = 0x69;
constexpr quint8 pluralRulesSection = 0x88;

// The sections of a catalogue in Qt's format, by their tags.
QMap<quint8, QByteArray> Sections(const QByteArray &catalogue)
{
    QMap<quint8, QByteArray> sections;
    QDataStream stream(catalogue.mid(magicSize));
    while (!stream.atEnd() && stream.status() == QDataStream::Ok) {
        quint8 tag = 0;
        QByteArray content;
        stream >> tag >> content;
        sections.insert(tag, content);
    }
    return sections;
}

struct StoredMessage
{
    QByteArray context;
    QByteArray source;
    QByteArray comment;
};

QList<StoredMessage> StoredMessages(const QByteArray &section)
{
    enum Tag : quint8 { End = 1, Translation = 3, Source = 6, Context = 7, Comment = 8 };
    QList<StoredMessage> messages;
    StoredMessage message;
    QDataStream stream(section);
    while (!stream.atEnd() && stream.status() == QDataStream::Ok) {
        quint8 tag = 0;
        QByteArray text;
        stream >> tag;
        if (tag != End)
            stream >> text;
        if (tag == Source)
            message.source = text;
        if (tag == Context)
            message.context = text;
        if (tag == Comment)
            message.comment = text;
        if (tag != End)
            continue;
        messages.append(message);
        message = {};
    }
    return messages;
}

QByteArray ReadResource(const QString &path)
{
    return QResource(path).uncompressedData();
}

// As the widgets ask for it.
QString LookUp(const SourceMessage &message)
{
    if (qstrcmp(message.context, dialogContext) == 0)
        return Orlimo::RPFmtEditingDlg::tr(message.text);
    if (qstrcmp(message.context, popupContext) == 0)
        return Orlimo::RPFmtSelectionDlg::tr(message.text);
    if (qstrcmp(message.context, formContext) == 0)
        return QCoreApplication::translate("RPFmtEditingDlgClass", message.text);
    return QCoreApplication::translate("RPObject", message.text, message.text);
}

// The words that the language has in common with English.
QStringList CommonWords(const QString &locale)
{
    static const QMap<QString, QStringList> words {
        { u"de_DE"_s, { u"Audio"_s, u"Auto"_s, u"Encoder"_s, u"Video"_s } },
        { u"es_ES"_s, { u"Audio"_s, u"Auto"_s } },
        { u"fr_FR"_s, { u"Audio"_s, u"Auto"_s } },
        { u"it_IT"_s, { u"Audio"_s, u"Auto"_s, u"Video"_s } },
        { u"pt_BR"_s, { u"Auto"_s } },
    };
    return words.value(locale);
}

bool IsLeftInEnglish(const Language &language, const SourceMessage &message)
{
    return language.locale == "pt_BR"_L1 && message == SourceMessage { formContext, "Sample Rate" };
}

} // namespace

class tst_Catalogues : public Test::TestCase
{
    Q_OBJECT

private:
    static Language languageOfTheRow()
    {
        QFETCH(const int, language);
        return CatalogueLanguages().at(language);
    }

private Q_SLOTS:
    void theFolderHoldsTheSixCataloguesInComposedUnicode()
    {
        QStringList expected;
        for (const Language &language : CatalogueLanguages()) {
            const QString file = language.name + u"_format.qm"_s;
            QCOMPARE(file.normalized(QString::NormalizationForm_C), file);
            expected += file;
        }
        QStringList names = QDir(u":/OLMediaFormatPopup/OLLanguage"_s).entryList();
        expected.sort();
        names.sort();
        QCOMPARE(names, expected);
    }

    void cataloguesAreStoredPlainOrCompressed_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("algorithm");
        const auto add = [](const char *tag, const QString &name,
                            QResource::Compression algorithm) {
            QTest::newRow(tag) << name << int(algorithm);
        };
        add("German", u"Deutsch"_s, QResource::NoCompression);
        add("Spanish", u"Español"_s, QResource::ZlibCompression);
        add("French", u"Français"_s, QResource::ZlibCompression);
        add("Italian", u"Italiano"_s, QResource::NoCompression);
        add("Portuguese", u"Português"_s, QResource::ZlibCompression);
        add("Japanese", u"日本語"_s, QResource::NoCompression);
    }

    void cataloguesAreStoredPlainOrCompressed()
    {
        QFETCH(const QString, name);
        QFETCH(const int, algorithm);
        const QResource catalogue(u":/OLMediaFormatPopup/OLLanguage/%1_format.qm"_s.arg(name));
        QVERIFY(catalogue.isValid());
        QCOMPARE(int(catalogue.compressionAlgorithm()), algorithm);
        const bool smaller = catalogue.size() < catalogue.uncompressedSize();
        QCOMPARE(smaller, algorithm == QResource::ZlibCompression);
    }

    void cataloguesSayTheirLanguage_data() { AddLanguageRows(CatalogueLanguages()); }

    void cataloguesSayTheirLanguage()
    {
        QTranslator translator;
        QVERIFY(translator.load(languageOfTheRow().Catalogue()));
        QCOMPARE(translator.language(), languageOfTheRow().locale);
    }

    void cataloguesDoNotDependOnTheLocale_data() { AddLanguageRows(CatalogueLanguages()); }

    void cataloguesDoNotDependOnTheLocale()
    {
        const QString path = languageOfTheRow().Catalogue();
        const QResource asked(path, QLocale(QLocale::Polish, QLocale::Poland));
        QVERIFY(asked.isValid());
        QCOMPARE(asked.uncompressedData(), ReadResource(path));
    }

    void europeanCataloguesHavePluralRules_data() { AddLanguageRows(CatalogueLanguages()); }

    void europeanCataloguesHavePluralRules()
    {
        const auto sections = Sections(ReadResource(languageOfTheRow().Catalogue()));
        const bool japanese = languageOfTheRow().locale == "ja_JP"_L1;
        QCOMPARE(!sections.value(pluralRulesSection).isEmpty(), !japanese);
    }

    void everyCatalogueHoldsTheSameMessagesWithoutComments_data()
    {
        AddLanguageRows(CatalogueLanguages());
    }

    void everyCatalogueHoldsTheSameMessagesWithoutComments()
    {
        const auto sections = Sections(ReadResource(languageOfTheRow().Catalogue()));
        const QList<StoredMessage> stored = StoredMessages(sections.value(messagesSection));
        const QList<SourceMessage> expected = CatalogueMessages();
        QCOMPARE(expected.size(), 68);
        QCOMPARE(stored.size(), expected.size());
        QList<QByteArray> formatLibrarysTexts;
        for (const StoredMessage &message : stored) {
            QVERIFY(message.comment.isEmpty());
            if (message.context == formatContext)
                formatLibrarysTexts += message.source;
            const SourceMessage found { message.context.constData(), message.source.constData() };
            QVERIFY2(expected.contains(found), found.text);
        }
        QCOMPARE(formatLibrarysTexts, QList<QByteArray>(formatTexts.begin(), formatTexts.end()));
    }

    void everyMessageIsShownAsItsSourceTranslatesIt_data()
    {
        AddLanguageRows(CatalogueLanguages());
    }

    void everyMessageIsShownAsItsSourceTranslatesIt()
    {
        const Language language = languageOfTheRow();
        const TranslationMap source = ReadTranslationSource(
                u"" ORLIMO_SOURCE_DIR "/resources/translations/%1.ts"_s.arg(language.locale));
        const InstalledLanguage installed(language);
        for (const SourceMessage &message : CatalogueMessages()) {
            const MessageKey key(QString::fromUtf8(message.context),
                                 QString::fromUtf8(message.text));
            const QString translation = source.value(key).text;
            if (IsLeftInEnglish(language, message)) {
                QCOMPARE(translation, QString());
                QCOMPARE(LookUp(message), QString::fromUtf8(message.text));
            } else {
                QVERIFY2(!translation.isEmpty(), message.text);
                QCOMPARE(LookUp(message), translation);
            }
        }
    }

    void nothingIsLeftInEnglishButWordsInCommon_data() { AddLanguageRows(CatalogueLanguages()); }

    void nothingIsLeftInEnglishButWordsInCommon()
    {
        const Language language = languageOfTheRow();
        const InstalledLanguage installed(language);
        for (const SourceMessage &message : CatalogueMessages()) {
            const QString text = QString::fromUtf8(message.text);
            const bool english = LookUp(message) == text;
            const bool expected = IsLeftInEnglish(language, message)
                    || CommonWords(language.locale).contains(text);
            QVERIFY2(english == expected, message.text);
        }
    }

    // The form's word has an entry without a translation; the format library's has a translation.
    void thePortugueseLabelOfTheSampleRateStaysInEnglish()
    {
        QTranslator translator;
        QVERIFY(translator.load(u":/OLMediaFormatPopup/OLLanguage/Português_format.qm"_s));
        QCOMPARE(translator.translate("RPFmtEditingDlgClass", "Sample Rate"), QString());
        QCOMPARE(translator.translate("RPObject", "Sample Rate"), u"Taxa de amostragem"_s);
        QCoreApplication::installTranslator(&translator);
        QCOMPARE(QCoreApplication::translate("RPFmtEditingDlgClass", "Sample Rate"),
                 u"Sample Rate"_s);
        QCOMPARE(QCoreApplication::translate("RPObject", "Sample Rate", "Sample Rate"),
                 u"Taxa de amostragem"_s);
    }

    void anyDisambiguationFallsBackToTheEntryWithoutOne_data()
    {
        AddLanguageRows(CatalogueLanguages());
    }

    void anyDisambiguationFallsBackToTheEntryWithoutOne()
    {
        const InstalledLanguage installed(languageOfTheRow());
        for (const char *text : formatTexts) {
            const QString plain = QCoreApplication::translate("RPObject", text);
            QCOMPARE(QCoreApplication::translate("RPObject", text, text), plain);
            QCOMPARE(QCoreApplication::translate("RPObject", text, "another"), plain);
            QCOMPARE(Orlimo::TranslateFormatText(text), plain);
        }
    }

    void aNewFormatIsShownUntranslated_data() { AddLanguageRows(CatalogueLanguages()); }

    void aNewFormatIsShownUntranslated()
    {
        const InstalledLanguage installed(languageOfTheRow());
        for (const char *text : { "A new file format", "MP4 Format", "MPEG file format for VCD" })
            QCOMPARE(Orlimo::TranslateFormatText(text), QString::fromUtf8(text));
    }

    void withoutACatalogueEveryTextIsEnglish()
    {
        for (const SourceMessage &message : CatalogueMessages())
            QCOMPARE(LookUp(message), QString::fromUtf8(message.text));
    }
};

ORLIMO_TEST_MAIN(tst_Catalogues)

#include "tst_catalogues.moc"
