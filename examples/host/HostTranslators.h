#pragma once

#include "HostLanguage.h"

#include <QTranslator>

#include <memory>
#include <vector>

namespace Host {

// The catalogues that the application uses: the picker's, the host's own and Qt's, whose texts
// stand on the standard buttons. The picker's lies in the library itself, so it is removed, as this
// object goes, while the library is loaded.
class HostTranslators
{
public:
    // Has every text looked up in this language from now on.
    void Use(const HostLanguage &language);

private:
    bool Install(const QString &catalogue, const QString &folder = {});

    std::vector<std::unique_ptr<QTranslator>> m_installed; // a translator removes itself as it goes
};

} // namespace Host
