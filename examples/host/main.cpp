#include "FormatChooser.h"
#include "HostOptions.h"
#include "HostWindow.h"
#include "WidgetLocator.h"

#include "IOLMediaFormatPopup.h"

#include <QApplication>
#include <QSettings>

#include <optional>

using namespace Qt::StringLiterals;
using Orlimo::IOLMediaFormatPopup;

namespace {

int RunWindow(bool locator)
{
    Host::FormatChooser chooser;
    Host::HostWindow window(chooser);
    std::optional<Host::WidgetLocator> widgetLocator;
    if (locator)
        widgetLocator.emplace();
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
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
    const int result = RunWindow(options.locator);
    IOLMediaFormatPopup::WaitForFormatDataLoadingComplete();
    return result;
}
