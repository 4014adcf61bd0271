#include "scanning/CaptureBuilder.h"
#include "scanning/recorded/ScanInput.h"

#include <QDir>
#include <QSet>

#include <gtest/gtest.h>

using namespace tessara;

namespace
{

struct RealCapture {
    const char* name;
    qsizetype bssids; ///< as counted by another program
    bool recordsSignal;
};

constexpr RealCapture kRealCaptures[] = {
    {"aircrack-ng_aircrack-ng__capture_wds-01.pcap", 1, false},
    {"aircrack-ng_aircrack-ng__Chinese-SSID-Name.pcap", 1, false},
    {"aircrack-ng_aircrack-ng__n-02.pcap", 1, false},
    {"aircrack-ng_aircrack-ng__test1.pcap", 7, true},
    {"aircrack-ng_aircrack-ng__wep.open.system.authentication.pcap", 1, false},
    {"aircrack-ng_aircrack-ng__wpa.pcap", 1, false},
    {"aircrack-ng_aircrack-ng__wpa3-psk.pcap", 1, false},
    {"aircrack-ng_aircrack-ng__wps2.0.pcap", 1, false},
    {"aircrack-ng_aircrack-ng__zn2i.pcap", 1, true},
    {"derv82_wifite2__handshake_not_exists.pcap", 23, false},
    {"hsngccu_WPA3-dataset__7.-DG_00048_20240417031113.pcap", 1, true},
    {"JPaulMora_Pyrit__wpa2psk-linksys.pcap", 1, false},
    {"JPaulMora_Pyrit__wpa2psk-MOM1.pcap", 1, false},
    {"JPaulMora_Pyrit__wpapsk-virgin_broadband.pcap", 1, false},
    {"martind1111_wifi_pi_survey__beacon_vendor_wpa_ccmp_psk.pcap", 1, true},
    {"martind1111_wifi_pi_survey__wlan.pcap", 9, true},
    {"mrdrivingduck_beacon-frame-analysis__beacon-asus-db202.pcap", 1, true},
    {"mrdrivingduck_beacon-frame-analysis__beacon-bigboy.pcap", 1, true},
    {"mrdrivingduck_beacon-frame-analysis__beacon-chaoweilanmao-soft.pcap", 1, true},
    {"mrdrivingduck_beacon-frame-analysis__beacon-dlink.pcap", 1, true},
    {"mrdrivingduck_beacon-frame-analysis__beacon-iphonex.pcap", 1, true},
    {"mrdrivingduck_beacon-frame-analysis__beacon-mrdk.pcap", 1, true},
    {"mrdrivingduck_beacon-frame-analysis__beacon-portal-juniper.pcap", 1, true},
    {"mrdrivingduck_beacon-frame-analysis__beacon-surface.pcap", 1, true},
    {"opendroneid_wireshark-dissector__odid_wifi_bcn_sample.pcap", 1, true},
    {"secdev_scapy__bad_rsn_parsing_overrides_ssid.pcap", 0, true},
    {"the-tcpdump-group_tcpdump__ieee802.11_meshid.pcap", 1, true},
    {"the-tcpdump-group_tcpdump__ieee802.11_parse_elements_oobr.pcap", 1, false},
    {"vanhoefm_fragattacks__eapol-inject-fromclient.pcap", 1, true},
    {"vanhoefm_fragattacks__ping_I_E_R_E-fromclient.pcap", 5, true},
    {"vanhoefm_krackattacks-scripts__example-ft.pcap", 2, true},
    {"wireshark-4.0.17__owe.pcap", 1, true},
    {"wireshark-4.0.17__wpa-ccmp-256.pcap", 1, true},
    {"wireshark-4.0.17__wpa-gcmp-256.pcap", 1, true},
    {"wireshark-4.0.17__wpa-test-decode.pcap", 1, true},
    {"wireshark-4.0.17__wpa1-gtk-rekey.pcap", 1, true},
    {"wireshark-4.0.17__wpa2-ft-psk.pcap", 2, true},
    {"wireshark-4.0.17__wpa3-sae.pcap", 1, true},
};

} // namespace

TEST(RealCaptures, GiveTheNetworksThatAnotherProgramFinds)
{
    const QString folder = qEnvironmentVariable("TESSARA_CAPTURES");
    if (folder.isEmpty())
        GTEST_SKIP() << "TESSARA_CAPTURES does not name a folder of real captures";
    for (const RealCapture& expected : kRealCaptures) {
        SCOPED_TRACE(expected.name);
        const ScanInput input =
            openScanInput(QDir(folder).filePath(QLatin1String(expected.name)), 3.0);
        ASSERT_TRUE(input.reader) << qPrintable(input.error);
        QSet<QString> bssids;
        for (const RecordedScan& scan : allScans(*input.reader)) {
            EXPECT_EQ(scan.recordsSignal, expected.recordsSignal);
            for (const ScanDictionary& network : scan.networks)
                bssids.insert(*network.bssid);
        }
        EXPECT_EQ(bssids.size(), expected.bssids);
        EXPECT_EQ(input.reader->error(), QString());
    }
}
