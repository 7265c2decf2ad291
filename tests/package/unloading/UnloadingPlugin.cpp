// The side of a host's plugin that uses the picker. Nothing of the library outlives a call.

#include "IOLFmtPresetDataSource.h"
#include "IOLFormatNode.h"
#include "IOLMediaFormatPopup.h"

#include <QtGlobal>

using namespace Orlimo;

extern "C" {

Q_DECL_EXPORT void StartLoading(const char *description)
{
    IOLMediaFormatPopup::SetupExternalFormatData(description);
}

Q_DECL_EXPORT void WaitForLoading()
{
    IOLMediaFormatPopup::WaitForFormatDataLoadingComplete();
}

Q_DECL_EXPORT int CategoryCount()
{
    const auto root = IOLFmtPresetDataSource::Shared()->GetDefaultFormatNode();
    return root ? root->ChildCount() : 0;
}

Q_DECL_EXPORT void ShowPopup()
{
    IOLMediaFormatPopup::Shared()->ShowFormatPopupAt({ 10, 10 }, nullptr);
}
}
