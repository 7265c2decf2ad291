#include "TestCase.h"

#include "HostLanguage.h"
#include "HostTranslators.h"
#include "OLFormatText.h"

#include <QFile>

using namespace Host;
using namespace Qt::StringLiterals;

namespace {

QString NameOf(const HostLanguage *language)
{
    return language ? language->name : QString();
}

} // namespace

class tst_HostLanguage : public Test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aLanguageIsFoundByLocaleAndByName_data()
    {
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QString>("name");
        const auto add = [](const QString &asked, const QString &name) {
            QTest::newRow(qUtf8Printable(asked)) << asked << name;
        };
        add(u"en"_s, u"English"_s);
        add(u"de"_s, u"Deutsch"_s);
        add(u"de_AT"_s, u"Deutsch"_s);
        add(u"es-MX"_s, u"Español"_s);
        add(u"fr_FR"_s, u"Français"_s);
        add(u"it"_s, u"Italiano"_s);
        add(u"pt"_s, u"Português"_s);
        add(u"pt_PT"_s, u"Português"_s);
        add(u"ja-JP"_s, u"日本語"_s);
        add(u"日本語"_s, u"日本語"_s);
        add(u"português"_s, u"Português"_s);
        add(u"pl"_s, QString());
        add(u"C"_s, QString());
        add(u"nonsense"_s, QString());
        add(QString(), QString());
    }

    void aLanguageIsFoundByLocaleAndByName()
    {
        QFETCH(const QString, asked);
        QTEST(NameOf(FindHostLanguage(asked)), "name");
    }

    void theLanguageAskedForComesBeforeTheRememberedAndTheSystems_data()
    {
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QString>("remembered");
        QTest::addColumn<QStringList>("system");
        QTest::addColumn<QString>("name");
        const QStringList french { u"fr-CA"_s, u"de"_s };
        QTest::newRow("asked") << u"it"_s << u"es"_s << french << u"Italiano"_s;
        QTest::newRow("remembered") << QString() << u"es"_s << french << u"Español"_s;
        QTest::newRow("English remembered") << QString() << u"en"_s << french << u"English"_s;
        QTest::newRow("system") << QString() << QString() << french << u"Français"_s;
        QTest::newRow("system's second")
                << QString() << QString() << QStringList { u"pl"_s, u"ja-JP"_s } << u"日本語"_s;
        QTest::newRow("nonsense remembered")
                << QString() << u"nonsense"_s << french << u"Français"_s;
        QTest::newRow("none") << QString() << QString() << QStringList { u"pl"_s, u"C"_s }
                              << u"English"_s;
    }

    void theLanguageAskedForComesBeforeTheRememberedAndTheSystems()
    {
        QFETCH(const QString, asked);
        QFETCH(const QString, remembered);
        QFETCH(const QStringList, system);
        QSettings settings(QSettings::IniFormat, QSettings::UserScope,
                           QCoreApplication::organizationName(), u"Example Host Window"_s);
        settings.remove("language");
        if (!remembered.isEmpty())
            settings.setValue("language", remembered);
        settings.sync();
        QTEST(FirstHostLanguage(asked, system).name, "name");
    }

    void everyLanguageButEnglishHasBothCatalogues()
    {
        QCOMPARE(HostLanguages().size(), 7);
        for (const HostLanguage &language : HostLanguages()) {
            QCOMPARE(QFile::exists(PickerCatalogue(language)), !language.IsSource());
            QCOMPARE(QFile::exists(HostCatalogue(language)), !language.IsSource());
        }
    }

    void aRememberedLanguageIsTheNextStarts()
    {
        RememberHostLanguage(*FindHostLanguage(u"pt"_s));
        QCOMPARE(FirstHostLanguage(QString(), { u"de"_s }).name, u"Português"_s);
    }

    void theHostsOwnTextsAreTranslated_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("text");
        QTest::newRow("English") << u"en"_s << u"Close"_s;
        QTest::newRow("German") << u"de"_s << u"Schließen"_s;
        QTest::newRow("Spanish") << u"es"_s << u"Cerrar"_s;
        QTest::newRow("French") << u"fr"_s << u"Fermer"_s;
        QTest::newRow("Italian") << u"it"_s << u"Chiudi"_s;
        QTest::newRow("Portuguese") << u"pt"_s << u"Fechar"_s;
        QTest::newRow("Japanese") << u"ja"_s << u"閉じる"_s;
    }

    void theHostsOwnTextsAreTranslated()
    {
        QFETCH(const QString, language);
        HostTranslators translators;
        translators.Use(*FindHostLanguage(language));
        QTEST(QCoreApplication::translate("OutputDialogClass", "Close"), "text");
    }

    void aLanguageIsUsedUntilTheNext()
    {
        {
            HostTranslators translators;
            translators.Use(*FindHostLanguage(u"de"_s));
            QCOMPARE(Orlimo::TranslateFormatText("Web Video"), u"Webvideo"_s);
            translators.Use(*FindHostLanguage(u"fr"_s));
            QCOMPARE(Orlimo::TranslateFormatText("Web Video"), u"Vidéo web"_s);
            QCOMPARE(QLocale().language(), QLocale::French);
            translators.Use(*FindHostLanguage(u"en"_s));
            QCOMPARE(Orlimo::TranslateFormatText("Web Video"), u"Web Video"_s);
            translators.Use(*FindHostLanguage(u"it"_s));
        }
        QCOMPARE(Orlimo::TranslateFormatText("Web Video"), u"Web Video"_s);
    }
};

ORLIMO_TEST_MAIN(tst_HostLanguage)

#include "tst_hostlanguage.moc"
