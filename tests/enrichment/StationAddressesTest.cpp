#include "enrichment/StationAddresses.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace tessara;

TEST(StationAddresses, AreThoseOfTheRadiosAndNothingElse)
{
    const struct {
        const char* what;
        QByteArrayList txt;
        const char* addresses; ///< joined by blanks
    } cases[] = {
        {"both radios",
         {"txtvers=1",
          "waMA=00-1C-B3-00-00-01,raMA=00-1C-B3-00-00-02,raM2=00-1C-B3-00-00-03,raCh=6"},
         "00:1C:B3:00:00:02 00:1C:B3:00:00:03"},
        {"as it was sent", {"waMA=raMA=aa-bb-cc-dd-ee-ff"}, "aa:bb:cc:dd:ee:ff"},
        {"no key", {"syFl=0x80C", "raMA=00-1C-B3-00-00-02"}, ""},
        {"another key", {"wama=raMA=00-1C-B3-00-00-02", "waMA2=raMA=1-2"}, ""},
        {"a key alone", {"waMA"}, ""},
        {"no value", {"waMA="}, ""},
        {"the first of a key counts", {"waMA=raMA=1-2", "waMA=raMA=3-4"}, "1:2"},
        {"pieces that are no pairs", {"waMA=raMA,,=,raMA=aa-bb=cc,raM3=1-2, raMA=3-4"}, ""},
        {"not ASCII", {"waMA=raMA=1-2,syNm=B\xc3\xbcro"}, ""},
        {"bytes of any kind",
         {QByteArray("\0\xff=", 3), QByteArray(), "=x", "waMA=raM2=5-6"},
         "5:6"},
        {"a zero byte", {QByteArray("waMA=\0,raMA=1-2", 15)}, "1:2"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(stationAddresses(c.txt).join(u' '), QString::fromLatin1(c.addresses)) << c.what;
}
