#include "model/AccessPointIdentity.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace tessara;

// Addresses as services give them are tested through the program, in tests/cli/test_attributes.py.
TEST(AccessPointIdentity, TakesAddressesAndNamesThatNoServiceGives)
{
    struct Case {
        const char* bssid;
        const char* vendor;
        const char* shortVendor;
        const char* deviceid;
        const char* apid;
    };
    const Case cases[] = {
        {"zz:73:CB:12:34:56", "Apple", "Apple", "Apple:12:34:56", "Apple:12:34:##"},
        {"7", "Apple", "Apple", "Apple", "App##"},
        {"", "Ubiquiti", "U", "U", "U"},
        {":", "Ruckus", "", "", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.bssid);
        const QString bssid = QString::fromLatin1(c.bssid);
        const QString deviceid = deviceIdentifier(bssid, QString::fromLatin1(c.shortVendor));
        EXPECT_EQ(deviceid, QString::fromLatin1(c.deviceid));
        EXPECT_EQ(accessPointIdentifier(bssid, deviceid, QString::fromLatin1(c.vendor)),
                  QString::fromLatin1(c.apid));
    }
    EXPECT_EQ(accessPointIdentifier({}, {}, {}), QString());
    EXPECT_EQ(accessPointIdentifier({}, QStringLiteral(":"), QStringLiteral("Ruckus")),
              QStringLiteral("#"));
}
