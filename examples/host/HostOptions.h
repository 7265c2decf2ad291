#pragma once

#include <QString>

class QCoreApplication;

namespace Host {

// What the user asks for on the command line, which is in English.
struct HostOptions
{
    QString description; // the format description
    QString settings;    // the folder of the settings, empty for the user's own
    QString language;    // as FindHostLanguage() takes it; empty where none is asked for
    bool locator = false;
};

// Ends the process after --help and after a wrong option.
HostOptions ReadHostOptions(const QCoreApplication &application);

} // namespace Host
