#pragma once

#include "IOLAppSettings.h"

#include <QString>

#include <map>
#include <string>

namespace Orlimo {

// The store behind IOLAppSettings. It holds the names of the file and the values not yet written;
// a QSettings object lives only as long as one operation.
class OLAppSettings final : public IOLAppSettings
{
public:
    OLAppSettings();

    void SetValue(std::string value, std::string key) override;
    std::string Value(std::string key) const override;
    void Save() override;

private:
    // Returns the reason for which nothing was written, empty where all was.
    std::string Write(const QString &path) const;
    static std::string KeepDamagedFile(const QString &path);
    bool WriteValues(const QString &copy, const QString &written) const;

    QString m_organization;
    QString m_application;
    std::map<std::string, std::string> m_unsaved;
};

} // namespace Orlimo
