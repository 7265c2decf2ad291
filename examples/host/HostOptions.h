#pragma once

#include <QString>

class QCoreApplication;

namespace Host {

// What the user asks for on the command line.
struct HostOptions
{
    QString description; // the format description
    QString settings;    // the folder of the settings, empty for the user's own
    bool locator = false;
};

// Ends the process after --help and after a wrong option.
HostOptions ReadHostOptions(const QCoreApplication &application);

} // namespace Host
