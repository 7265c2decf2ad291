#pragma once

#include "olmediaformat_export.h"

#include <QIcon>

namespace Orlimo {

/// The images of one face id, in one or more sizes.
///
/// Holds the encoded images, so it may outlive the application object. GUI thread.
class OLMEDIAFORMAT_EXPORT IOLArtworkImageGroup
{
public:
    IOLArtworkImageGroup();
    IOLArtworkImageGroup(const IOLArtworkImageGroup &other);
    IOLArtworkImageGroup(IOLArtworkImageGroup &&other);
    IOLArtworkImageGroup &operator=(const IOLArtworkImageGroup &other);
    IOLArtworkImageGroup &operator=(IOLArtworkImageGroup &&other);

    /// Returns the icon, which picks the smallest image that is large enough for the device's
    /// pixels and never enlarges one to save looking for a larger. Never null. The icon keeps the
    /// images alive by itself and must not outlive the application object.
    virtual QIcon Icon() const = 0;

protected:
    ~IOLArtworkImageGroup();
};

} // namespace Orlimo
