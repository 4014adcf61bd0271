#pragma once

#include "foundation/Clock.h"
#include "scanning/CWInterface.h"
#include "scanning/nl80211/NetworkManagerClient.h"

namespace tessara {

/// The wireless interfaces of this machine that the kernel's nl80211 knows and that can be a
/// station. The default one is that of the lowest index. Without nl80211 there are none.
class Nl80211Service final : public WiFiService {
public:
    /// @param pause must outlive the service and its interfaces
    Nl80211Service(NetworkManagerClient networkManager, Pause& pause);

    std::shared_ptr<CWInterface> interface() override;
    std::shared_ptr<CWInterface> interfaceWithName(const QString& name) override;
    QStringList interfaceNames() override;

private:
    const NetworkManagerClient m_networkManager;
    Pause& m_pause;
};

} // namespace tessara
