#include "IOLMediaFormatPopup.h"

#include "IOLFmtPresetDataSource.h"
#include "OLMediaFormatPopupWin.h"

namespace Orlimo {

namespace {

std::shared_ptr<OLMediaFormatPopupWin> sharedPopup;

} // namespace

IOLMediaFormatPopup::IOLMediaFormatPopup() = default;
IOLMediaFormatPopup::IOLMediaFormatPopup(const IOLMediaFormatPopup &) = default;
IOLMediaFormatPopup::IOLMediaFormatPopup(IOLMediaFormatPopup &&) = default;
IOLMediaFormatPopup &IOLMediaFormatPopup::operator=(const IOLMediaFormatPopup &) = default;
IOLMediaFormatPopup &IOLMediaFormatPopup::operator=(IOLMediaFormatPopup &&) = default;
IOLMediaFormatPopup::~IOLMediaFormatPopup() = default;

std::shared_ptr<IOLMediaFormatPopup> IOLMediaFormatPopup::Shared()
{
    if (!sharedPopup)
        sharedPopup = std::make_shared<OLMediaFormatPopupWin>();
    return sharedPopup;
}

// The picker is made before the loading thread starts, which only reads the pointer to it.
void IOLMediaFormatPopup::SetupExternalFormatData(const std::string &path)
{
    Shared();
    IOLFmtPresetDataSource::Shared()->AsyncLoadExternalDataSource(path, [] {
        sharedPopup->PostFormatDataLoaded();
    });
}

void IOLMediaFormatPopup::WaitForFormatDataLoadingComplete()
{
    IOLFmtPresetDataSource::Shared()->WaitForLoadingComplete();
}

} // namespace Orlimo
