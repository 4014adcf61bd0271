#pragma once

#include "foundation/Directories.h"

#include <QHash>

namespace tessara {

/// A vendor directory of a few names, installed as long as it lives.
class FixedVendors final : public VendorDirectory {
public:
    FixedVendors() { Directories::installed().vendors = this; }
    ~FixedVendors() override { Directories::installed().vendors = nullptr; }
    FixedVendors(const FixedVendors&) = delete;
    FixedVendors& operator=(const FixedVendors&) = delete;

    std::optional<QString> vendorFor(const QString& bssid) const override
    {
        const auto vendor = m_vendors.constFind(bssid.left(8));
        return vendor == m_vendors.constEnd() ? std::nullopt : std::optional(*vendor);
    }

private:
    const QHash<QString, QString> m_vendors{
        {QStringLiteral("00:00:00"), QStringLiteral("XEROX CORPORATION")},
        {QStringLiteral("00:0B:86"), QStringLiteral("Aruba, a Hewlett Packard Enterprise Company")},
        {QStringLiteral("00:0C:42"), QStringLiteral("Routerboard.com")},
        {QStringLiteral("00:0F:AC"), QStringLiteral("IEEE 802.11")},
        {QStringLiteral("00:10:18"), QStringLiteral(", Inc.")},
        {QStringLiteral("00:40:96"), QStringLiteral("CISCO SYSTEMS, INC.")},
        {QStringLiteral("00:50:F2"), QStringLiteral("MICROSOFT CORP.")},
        {QStringLiteral("50:6F:9A"), QStringLiteral("Wi-Fi Alliance")},
        {QStringLiteral("00:E0:4C"), QStringLiteral("o'brien-3com labs")},
    };
};

} // namespace tessara
