#include "model/AccessPointIdentity.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace tessara;

TEST(AccessPointIdentity, MasksTheDigitsInWhichAVendorsAddressesDiffer)
{
    struct Case {
        const char* bssid;
        const char* vendor; ///< none where empty
        const char* shortVendor;
        const char* deviceid;
        const char* apid;
    };
    const Case cases[] = {
        {"00:24:6C:01:02:13", "", "", "00:24:6C:01:02:13", "00:24:6C:01:02:1#"},
        {"00:11:22:33:44:55", "Cisco Systems", "Cisco", "Cisco:33:44:55", "Cisco:33:44:5#"},
        {"04:4F:AA:0A:1B:2C", "Ruckus Wireless", "Ruckus", "Ruckus:0A:1B:2C", "Ruckus:#A:1B:2#"},
        {"24:A4:3C:12:34:56", "Ubiquiti Inc", "Ubiquiti", "Ubiquiti:12:34:56", "Ubiquiti:1#:34:56"},
        {"00:18:0A:12:34:56", "Cisco Meraki", "Meraki", "Meraki:12:34:56", "Meraki:12:34:56"},
        {"02:18:4A:12:34:56", "Cisco Meraki", "Meraki", "Meraki:12:34:56", "Meraki:12:34:5#"},
        {"00:88:15:14:E2:55", "Meraki", "Meraki", "Meraki:14:E2:55", "Meraki:14:E2:5#"},
        {"70:73:CB:12:34:56", "Apple", "Apple", "Apple:12:34:56", "Apple:12:34:##"},
        {"72:73:CB:12:34:56", "Apple", "Apple", "Apple:12:34:56", "Apple:12:CB:##"},
        {"zz:73:CB:12:34:56", "Apple", "Apple", "Apple:12:34:56", "Apple:12:34:##"},
        // What no service should give, and a recording can.
        {"", "", "", "", ""},
        {"7", "Apple", "Apple", "Apple", "App##"},
        {"", "Ubiquiti", "U", "U", "U"},
        {":", "Ruckus", "", ":", "#"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.bssid);
        const auto optional = [](const char* text) {
            return *text ? std::optional(QString::fromLatin1(text)) : std::nullopt;
        };
        const QString bssid = QString::fromLatin1(c.bssid);
        const QString deviceid = deviceIdentifier(bssid, optional(c.shortVendor));
        EXPECT_EQ(deviceid, QString::fromLatin1(c.deviceid));
        EXPECT_EQ(accessPointIdentifier(bssid, deviceid, optional(c.vendor)),
                  QString::fromLatin1(c.apid));
    }
}
