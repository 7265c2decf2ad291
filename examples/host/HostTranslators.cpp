#include "HostTranslators.h"

#include <QCoreApplication>
#include <QLibraryInfo>

#include <utility>

namespace Host {

using namespace Qt::StringLiterals;

void HostTranslators::Use(const HostLanguage &language)
{
    m_installed.clear();
    QLocale::setDefault(language.locale);
    if (language.IsSource())
        return;
    // Not every system has Qt's catalogues.
    Install(u"qtbase_"_s + language.locale.name(),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    for (const QString &catalogue : { HostCatalogue(language), PickerCatalogue(language) }) {
        if (!Install(catalogue))
            qWarning("There is no catalogue %s", qUtf8Printable(catalogue));
    }
}

bool HostTranslators::Install(const QString &catalogue, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(catalogue, folder))
        return false;
    QCoreApplication::installTranslator(translator.get());
    m_installed.push_back(std::move(translator));
    return true;
}

} // namespace Host
