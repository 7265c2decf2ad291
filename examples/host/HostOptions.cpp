#include "HostOptions.h"

#include "HostLanguage.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

namespace Host {

using namespace Qt::StringLiterals;

namespace {

QString KnownLanguages()
{
    QStringList languages;
    for (const HostLanguage &language : HostLanguages())
        languages += QLocale::languageToCode(language.locale.language());
    return languages.join(u", "_s);
}

void RefuseUnknownLanguage(const QString &language)
{
    if (language.isEmpty() || FindHostLanguage(language))
        return;
    std::fprintf(stderr, "There is no language \"%s\".\n", qUtf8Printable(language));
    std::exit(EXIT_FAILURE);
}

} // namespace

HostOptions ReadHostOptions(const QCoreApplication &application)
{
    const QCommandLineOption
            description(u"description"_s,
                        u"Read the formats from FILE and their icons from beside it."_s, u"FILE"_s,
                        QCoreApplication::applicationDirPath() + u"/formats/formats.json"_s);
    const QCommandLineOption
            settings(u"settings"_s,
                     u"Keep recent choices, custom presets and the language in FOLDER."_s,
                     u"FOLDER"_s);
    const QCommandLineOption language(u"language"_s,
                                      u"Show all texts in LANGUAGE: %1."_s.arg(KnownLanguages()),
                                      u"LANGUAGE"_s);
    const QCommandLineOption
            locator(u"locator"_s,
                    u"Tell on standard output where the widgets are whose names come in on "
                    "standard input."_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"A converter's window that has its output format chosen by the format picker."_s);
    parser.addHelpOption();
    parser.addOptions({ description, settings, language, locator });
    parser.process(application);
    RefuseUnknownLanguage(parser.value(language));
    return { parser.value(description), parser.value(settings), parser.value(language),
             parser.isSet(locator) };
}

} // namespace Host
