#include "IsolatedSettings.h"

#include <QCoreApplication>

namespace Test {

IsolatedSettings::IsolatedSettings()
{
    qputenv("XDG_CONFIG_HOME", m_folder.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", m_folder.path().toUtf8());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
    QCoreApplication::setOrganizationName(QStringLiteral("Test Organisation"));
    QCoreApplication::setApplicationName(QStringLiteral("Test Application"));
}

} // namespace Test
