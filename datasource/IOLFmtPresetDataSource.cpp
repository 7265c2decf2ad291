#include "IOLFmtPresetDataSource.h"

#include "OLFmtPresetDataSource.h"

namespace Orlimo {

namespace {

std::shared_ptr<IOLFmtPresetDataSource> sharedDataSource;

} // namespace

IOLFmtPresetDataSource::IOLFmtPresetDataSource() = default;
IOLFmtPresetDataSource::IOLFmtPresetDataSource(const IOLFmtPresetDataSource &) = default;
IOLFmtPresetDataSource::IOLFmtPresetDataSource(IOLFmtPresetDataSource &&) = default;
IOLFmtPresetDataSource &IOLFmtPresetDataSource::operator=(const IOLFmtPresetDataSource &) = default;
IOLFmtPresetDataSource &IOLFmtPresetDataSource::operator=(IOLFmtPresetDataSource &&) = default;
IOLFmtPresetDataSource::~IOLFmtPresetDataSource() = default;

std::shared_ptr<IOLFmtPresetDataSource> IOLFmtPresetDataSource::Shared()
{
    if (!sharedDataSource)
        sharedDataSource = std::make_shared<OLFmtPresetDataSource>();
    return sharedDataSource;
}

} // namespace Orlimo
