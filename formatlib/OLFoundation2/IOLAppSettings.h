#pragma once

#include "olfoundation2_export.h"

#include <memory>
#include <string>

namespace Orlimo {

/// The application's settings store: texts by key.
///
/// The store is an INI file of the user (QSettings::IniFormat, QSettings::UserScope) under the
/// organisation and application names that the application has when Shared() is first called. Where
/// the host set none, they are "Orlimo" and the program's name, or "OLMediaFormatPopup" where there
/// is no application object either. The file is Organisation/Application.ini in the folder for the
/// roaming data of programs (%APPDATA%) on Windows and in $XDG_CONFIG_HOME, or ~/.config,
/// elsewhere, unless the host has moved it with QSettings::setPath(). All texts are UTF-8 on every
/// platform. All calls belong on the GUI thread.
class OLFOUNDATION2_EXPORT IOLAppSettings
{
public:
    IOLAppSettings();
    IOLAppSettings(const IOLAppSettings &other);
    IOLAppSettings(IOLAppSettings &&other);
    IOLAppSettings &operator=(const IOLAppSettings &other);
    IOLAppSettings &operator=(IOLAppSettings &&other);

    /// Returns the process's single store; never empty. It keeps no file open and may be used
    /// before the application object is made and after it is gone.
    static std::shared_ptr<IOLAppSettings> Shared();

    /// Sets the text under @p key to @p value (both UTF-8) in memory; Save() writes it. A key that
    /// is empty or of nothing but slashes is ignored.
    virtual void SetValue(std::string value, std::string key) = 0;

    /// Returns the text under @p key: the one last set, else the stored one, else an empty text. A
    /// stored value that is no text counts as none.
    virtual std::string Value(std::string key) const = 0;

    /// Writes what was set since the last successful call. The file is replaced as a whole: after a
    /// failure, which logs one line with the file and the reason, it holds what it held before, and
    /// the next call tries again.
    ///
    /// Values of other keys stay, but for those of types that QSettings does not know in this
    /// program. A file that is no INI file in UTF-8, or only in part, is kept beside it under its
    /// name with ".unreadable" behind (and a number where that is taken), which is logged. A stored
    /// value that is no text is kept under "unreadable/" and its key, followed by "_2" to "_9"
    /// where that is taken; of more such values the last key holds the newest.
    virtual void Save() = 0;

protected:
    ~IOLAppSettings();
};

} // namespace Orlimo
