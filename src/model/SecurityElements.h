#pragma once

#include "model/PlacedElement.h"
#include "model/SecurityMode.h"

namespace tessara {

/// What the RSN element (IEEE Std 802.11-2020, 9.4.2.24) and the WPA element, its forerunner, say
/// together of how a network is protected.
class SecurityElements {
public:
    void addRSN(const PlacedElement& element);
    /// A vendor element of Microsoft's, type 1.
    void addWPA(const PlacedElement& element);

    /// The pairwise ciphers: bits 1 WEP-40, 2 TKIP, 4 CCMP, 8 WEP-104.
    int cipherType() const { return m_cipherType; }
    /// Whether management frames can be protected.
    bool protectsManagement() const { return m_protectsManagement; }
    /// Whether one of the elements offers no key management of fast transition.
    bool lacksTransition() const { return m_lacksTransition; }
    /// The kind of security.
    /// @param given what the scan says; it stands unless it is WEP or unknown
    SecurityMode mode(SecurityMode given) const;

private:
    std::size_t readSuites(const PlacedElement& element, std::uint32_t oui, std::size_t number);

    bool m_hasRSN = false;
    bool m_hasWPA = false;
    int m_cipherType = 0;
    bool m_enterprise = false;
    bool m_lacksTransition = false;
    bool m_protectsManagement = false;
};

} // namespace tessara
