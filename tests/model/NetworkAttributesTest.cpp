#include "model/NetworkAttributes.h"

#include <gtest/gtest.h>

using namespace tessara;

// What attributes say is tested from the bytes of a recording to the record's values, in
// tests/cli/test_attributes.py.
TEST(NetworkAttributes, SurviveEveryTruncationOfEveryElement)
{
    const QByteArray all = QByteArray::fromHex(
        "0004486f6d65 0104 82848b96 030106 0706 444520 010d14 0b05 0700 80 0000 200103"
        "2d1a 6f00 17 ffffffff" +
        QByteArray(38, '0') +
        "3014 0100 000fac04 0100 000fac04 0100 000fac04 8000 3603 aabb01"
        "3d16 060100" +
        QByteArray(38, '0') + "851e" + QByteArray(60, '5') +
        "bf0c ff000000 00000000 aaff0000 c005 012a000000"
        "dd16 0050f201 0100 0050f202 0100 0050f202 0100 0050f201"
        "dd0e 0050f204 1044 0001 02 104a 0001 10 dd15 000c42 00 010f" +
        QByteArray(30, '1'));
    ScanDictionary dictionary;
    NetworkAttributes attributes;
    for (qsizetype length = 0; length <= all.size(); ++length) {
        // A block of exactly this size, so that a sanitizer sees a step too far.
        dictionary.informationElementData = QByteArray(all.constData(), length);
        attributes = attributesOf(dictionary, {});
    }
    EXPECT_EQ(attributes.securityMode, SecurityMode::kWPAAndWPA2Enterprise);
    EXPECT_EQ(attributes.streams, 4);
    EXPECT_TRUE(attributes.wpsConfigured);
}
