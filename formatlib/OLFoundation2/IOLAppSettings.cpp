#include "IOLAppSettings.h"

#include "OLAppSettings.h"

namespace Orlimo {

IOLAppSettings::IOLAppSettings() = default;
IOLAppSettings::IOLAppSettings(const IOLAppSettings &) = default;
IOLAppSettings::IOLAppSettings(IOLAppSettings &&) = default;
IOLAppSettings &IOLAppSettings::operator=(const IOLAppSettings &) = default;
IOLAppSettings &IOLAppSettings::operator=(IOLAppSettings &&) = default;
IOLAppSettings::~IOLAppSettings() = default;

std::shared_ptr<IOLAppSettings> IOLAppSettings::Shared()
{
    static const auto settings = std::make_shared<OLAppSettings>();
    return settings;
}

} // namespace Orlimo
