#include "FormatChooser.h"
#include "HostLanguage.h"
#include "HostOptions.h"
#include "HostTranslators.h"
#include "HostWindow.h"
#include "WidgetLocator.h"

#include "IOLMediaFormatPopup.h"

#include <QApplication>
#include <QSettings>

#include <optional>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

using namespace Qt::StringLiterals;
using Orlimo::IOLMediaFormatPopup;

namespace {

// The catalogues are installed before the first widget is made, and go after the last.
int RunWindow(const Host::HostOptions &options)
{
    const Host::HostLanguage &language = Host::FirstHostLanguage(options.language,
                                                                 QLocale::system().uiLanguages());
    Host::HostTranslators translators;
    translators.Use(language);
    Host::FormatChooser chooser;
    Host::HostWindow window(chooser, translators, language);
    std::optional<Host::WidgetLocator> widgetLocator;
    if (options.locator)
        widgetLocator.emplace();
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
#ifdef Q_OS_WIN
    SetConsoleOutputCP(CP_UTF8); // for the names that are printed
#endif
#ifdef Q_OS_LINUX
    // The popup is placed in coordinates of the screen, which Wayland does not give to its clients.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
#endif
    // The picker keeps its choices under these names, so they stand before its first call.
    QApplication::setOrganizationName(u"Orlimo"_s);
    QApplication::setApplicationName(u"Example Host"_s);
    QApplication application(argc, argv);

    const Host::HostOptions options = Host::ReadHostOptions(application);
    if (!options.settings.isEmpty())
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, options.settings);

    // The window need not wait for the load: the popup takes the formats up when they are there.
    IOLMediaFormatPopup::SetupExternalFormatData(options.description.toStdString());
    const int result = RunWindow(options);
    IOLMediaFormatPopup::WaitForFormatDataLoadingComplete();
    return result;
}
