#pragma once

#include <QCoreApplication>
#include <QList>
#include <QTest>
#include <QTranslator>

#include <optional>

namespace Test {

// A language of the user: its name for itself and its locale. English is the language of the source
// texts and has no catalogue.
struct Language
{
    const char *tag; // for the names of test rows
    QString name;
    QString locale;

    bool HasCatalogue() const { return locale != QLatin1String("en"); }

    QString Catalogue() const
    {
        return QStringLiteral(":/OLMediaFormatPopup/OLLanguage/%1_format.qm").arg(name);
    }
};

inline QList<Language> CatalogueLanguages()
{
    return { { "German", QStringLiteral("Deutsch"), QStringLiteral("de_DE") },
             { "Spanish", QStringLiteral("Español"), QStringLiteral("es_ES") },
             { "French", QStringLiteral("Français"), QStringLiteral("fr_FR") },
             { "Italian", QStringLiteral("Italiano"), QStringLiteral("it_IT") },
             { "Portuguese", QStringLiteral("Português"), QStringLiteral("pt_BR") },
             { "Japanese", QStringLiteral("日本語"), QStringLiteral("ja_JP") } };
}

inline Language LanguageOf(const QString &locale)
{
    for (const Language &language : CatalogueLanguages()) {
        if (language.locale == locale)
            return language;
    }
    qFatal("there is no catalogue for %s", qPrintable(locale));
}

inline QList<Language> AllLanguages()
{
    return CatalogueLanguages() << Language { "English", QStringLiteral("English"),
                                              QStringLiteral("en") };
}

// Test rows with the one column "language", an index into AllLanguages(), where English is last.
inline void AddLanguageRows(const QList<Language> &languages)
{
    QTest::addColumn<int>("language");
    for (int i = 0; i < languages.size(); ++i)
        QTest::newRow(languages.at(i).tag) << i;
}

// The application speaks the language as long as this object lives.
class InstalledLanguage
{
public:
    explicit InstalledLanguage(const Language &language)
    {
        if (!language.HasCatalogue())
            return;
        m_translator.emplace();
        if (!m_translator->load(language.Catalogue()))
            qFatal("%s cannot be loaded", qPrintable(language.Catalogue()));
        QCoreApplication::installTranslator(&*m_translator);
    }

    ~InstalledLanguage()
    {
        if (m_translator)
            QCoreApplication::removeTranslator(&*m_translator);
    }

    Q_DISABLE_COPY_MOVE(InstalledLanguage)

private:
    std::optional<QTranslator> m_translator;
};

} // namespace Test
