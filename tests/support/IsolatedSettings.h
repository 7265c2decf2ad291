#pragma once

#include <QSettings>
#include <QString>
#include <QTemporaryDir>

namespace Test {

// Keeps the settings of the process in a temporary folder, which goes when the object does.
class IsolatedSettings
{
public:
    IsolatedSettings();

    QString Folder() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

} // namespace Test
