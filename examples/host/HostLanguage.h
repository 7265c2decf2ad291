#pragma once

#include <QList>
#include <QLocale>
#include <QString>

namespace Host {

// A language in which the host and the picker can be shown.
struct HostLanguage
{
    QString name; // its own name for itself
    QLocale locale;

    // The source texts are English; every other language has catalogues.
    bool IsSource() const { return locale.language() == QLocale::English; }
};

const QList<HostLanguage> &HostLanguages();

// The language of that locale ("pt", "pt_BR") or of that name for itself ("Português"); null where
// there is none.
const HostLanguage *FindHostLanguage(const QString &localeOrName);

// The language to start in: the one asked for, if any, else the one remembered, else the first of
// the system's, in the user's order, that there is; English where there is none.
const HostLanguage &FirstHostLanguage(const QString &asked, const QStringList &system);

// Has the next start begin in the language.
void RememberHostLanguage(const HostLanguage &language);

// Where the picker's library keeps its catalogue for the language.
QString PickerCatalogue(const HostLanguage &language);

// Where the host keeps its own.
QString HostCatalogue(const HostLanguage &language);

} // namespace Host
