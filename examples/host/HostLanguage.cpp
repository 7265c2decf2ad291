#include "HostLanguage.h"

#include <QCoreApplication>
#include <QSettings>

namespace Host {

using namespace Qt::StringLiterals;

namespace {

// A file of the host's own: the one of its name belongs to the picker.
QSettings OwnSettings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope,
                     QCoreApplication::organizationName(), u"Example Host Window"_s);
}

} // namespace

const QList<HostLanguage> &HostLanguages()
{
    static const QList<HostLanguage> languages {
        { u"English"_s, QLocale(QLocale::English) },
        { u"Deutsch"_s, QLocale(QLocale::German) },
        { u"Español"_s, QLocale(QLocale::Spanish) },
        { u"Français"_s, QLocale(QLocale::French) },
        { u"Italiano"_s, QLocale(QLocale::Italian) },
        { u"Português"_s, QLocale(QLocale::Portuguese, QLocale::Brazil) },
        { u"日本語"_s, QLocale(QLocale::Japanese) },
    };
    return languages;
}

const HostLanguage *FindHostLanguage(const QString &localeOrName)
{
    const QLocale::Language asked = QLocale(localeOrName).language();
    for (const HostLanguage &language : HostLanguages()) {
        if (language.locale.language() == asked
            || language.name.compare(localeOrName, Qt::CaseInsensitive) == 0)
            return &language;
    }
    return nullptr;
}

const HostLanguage &FirstHostLanguage(const QString &asked, const QStringList &system)
{
    const QString remembered = OwnSettings().value("language").toString();
    for (const QString &wanted : QStringList { asked, remembered } + system) {
        if (const HostLanguage *language = FindHostLanguage(wanted))
            return *language;
    }
    return HostLanguages().first();
}

void RememberHostLanguage(const HostLanguage &language)
{
    OwnSettings().setValue("language", language.locale.name());
}

QString PickerCatalogue(const HostLanguage &language)
{
    return u":/OLMediaFormatPopup/OLLanguage/%1_format.qm"_s.arg(language.name);
}

QString HostCatalogue(const HostLanguage &language)
{
    return u":/ExampleHost/OLLanguage/%1_host.qm"_s.arg(language.name);
}

} // namespace Host
