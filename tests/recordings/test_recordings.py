"""The bundled recordings: made from their descriptions, and true to them as tshark sees it."""

import gzip
import json
import shutil
import subprocess
import tempfile
import unittest
from collections import defaultdict
from collections.abc import Callable, Iterator
from pathlib import Path
from typing import Any

from frames import capture
from recording.beacon import Beacon
from recording.place import read_place

ROOT = Path(__file__).resolve().parents[2]
DESCRIPTIONS = sorted((ROOT / "recordings").glob("*.toml"))
UNKNOWN_SECURITY = 2**63 - 1

REQUIRED = {"bssid": str, "channelNumber": int, "rssiValue": int, "noiseMeasurement": int,
            "informationElementData": str, "ibss": bool, "beaconInterval": int, "phyMode": int,
            "securityMode": int}


def scans_of(description: Path) -> list[dict[str, Any]]:
    with gzip.open(description.with_suffix(".jsonl.gz"), "rt", encoding="utf-8") as file:
        return [json.loads(line) for line in file]


class Recording(unittest.TestCase):
    def test_is_what_its_description_makes(self) -> None:
        for description in DESCRIPTIONS:
            with self.subTest(description.name), tempfile.TemporaryDirectory() as folder:
                made = Path(folder) / "made.jsonl.gz"
                subprocess.run([ROOT / "tools/make-recording", description, made], check=True)
                bundled = description.with_suffix(".jsonl.gz").read_bytes()
                self.assertEqual(gzip.decompress(made.read_bytes()), gzip.decompress(bundled))
                self.assertEqual(made.read_bytes(), bundled)

    def test_holds_scans_as_a_wifi_service_gives_them(self) -> None:
        for description in DESCRIPTIONS:
            scans = scans_of(description)
            times = [scan["time"] for scan in scans]
            gaps = [later - earlier for earlier, later in zip(times, times[1:])]
            self.assertTrue(all(2.5 < gap < 4 for gap in gaps))
            self.assertLess(len(scans[0]["networks"]), len(scans[1]["networks"]))
            for scan in scans:
                self.assertEqual(scan.keys(), {"time", "networks"})
                keys = [(n["bssid"], n["channelNumber"]) for n in scan["networks"]]
                self.assertEqual(len(keys), len(set(keys)))
                for network in scan["networks"]:
                    self.check_network(network)

    def check_network(self, network: dict[str, Any]) -> None:
        types = {key: type(value) for key, value in network.items() if key != "ssid"}
        self.assertEqual(types, REQUIRED)
        self.assertTrue(network.get("ssid", "?"))
        self.assertRegex(network["bssid"], "^([0-9a-f]{2}:){5}[0-9a-f]{2}$")
        self.assertRegex(network["informationElementData"], "^([0-9a-f]{2})+$")
        self.assertTrue(network["rssiValue"] == 0 or -95 <= network["rssiValue"] <= -30)
        self.assertTrue(network["noiseMeasurement"] == 0
                        or -101 <= network["noiseMeasurement"] <= -85)
        self.assertIn(network["securityMode"], (1, UNKNOWN_SECURITY))


# Key management and pairwise ciphers of RSN, the same of WPA, whether management frames can and
# must be protected, and the Privacy bit: by the words of the descriptions.
SECURITY = {
    "open": ("", "", "", "", "", "", "0"),
    "wep": ("", "", "", "", "", "", "1"),
    "wpa-psk": ("", "", "2", "2", "", "", "1"),
    "wpa-enterprise": ("", "", "1", "2", "", "", "1"),
    "wpa-wpa2-psk": ("2", "4;2", "2", "2;4", "0", "0", "1"),
    "wpa-wpa2-enterprise": ("1", "4;2", "1", "2", "0", "0", "1"),
    "wpa2-psk": ("2", "4", "", "", "0", "0", "1"),
    "wpa2-psk-pmf": ("2;6", "4", "", "", "1", "0", "1"),
    "wpa2-psk-ft": ("2;4", "4", "", "", "0", "0", "1"),
    "wpa2-enterprise": ("1", "4", "", "", "0", "0", "1"),
    "wpa2-enterprise-ft": ("1;3", "4", "", "", "1", "0", "1"),
    "wpa3-sae": ("8", "4", "", "", "1", "1", "1"),
    "wpa3-transition": ("2;8", "4", "", "", "1", "0", "1"),
    "owe": ("18", "4", "", "", "1", "1", "1"),
}
SECURITY_FIELDS = (
    "wlan.rsn.akms.type", "wlan.rsn.pcs.type", "wlan.wfa.ie.wpa.type",
    "wlan.wfa.ie.wpa.ucs.type", "wlan.rsn.capabilities.mfpc", "wlan.rsn.capabilities.mfpr",
    "wlan.fixed.capabilities.privacy",
)

# Secondary channel offset and width code, and how far the centre of the first segment may lie
# from the primary channel, in channel numbers.
WIDTHS = {
    "20": ({"", "0x00"}, {"", "0"}, {0}),
    "40+": ({"0x01"}, {"", "0"}, {0}),
    "40-": ({"0x03"}, {"", "0"}, {0}),
    "80": ({"0x01", "0x03"}, {"1"}, {2, 6}),
    "160": ({"0x01", "0x03"}, {"2"}, {2, 6, 10, 14}),
    "80+80": ({"0x01", "0x03"}, {"3"}, {2, 6}),
}
WIDTH_FIELDS = ("wlan.ht.info.secchanoffset", "wlan.vht.op.channelwidth",
                "wlan.vht.op.channelcenter0", "wlan.vht.op.channelcenter1")

# What tshark shows of a feature, and which networks are to have it.
FEATURES: dict[str, Callable[[Beacon], object]] = {
    "wlan.qbss.scount": lambda b: b.has("bss-load"),
    "wlan.rmcap": lambda b: b.has("rm"),
    "wlan.extcap.b19": lambda b: b.has("bss-transition"),
    "wlan.powercon.local": lambda b: b.has("power-control"),
    "wlan.tcprep.trsmt_pow": lambda b: b.has("power-control"),
    "wlan.time_adv.time_value.year": lambda b: b.has("time-advertisement"),
    "wlan.hs20.indication.dgaf_disabled": lambda b: b.has("hotspot"),
    "wlan.roaming_consortium.oi2": lambda b: b.has("hotspot"),
    "wifi_p2p.device_id": lambda b: b.has("p2p"),
    "wlan.wfa.ie.owe.ssid": lambda b: b.has("owe-transition"),
    "wlan.aironet.clientmfp": lambda b: b.has("cisco-extensions"),
    "wlan.mobility_domain.mdid": lambda b: b.security.endswith("-ft")
    or b.has("mobility-domain"),
    "wlan.cisco.ccx1.name": lambda b: b.name_element == "cisco",
    "wlan.vs.aruba.ap_name": lambda b: b.name_element == "aruba",
    "wlan.vs.routerboard.subtype1_data": lambda b: b.name_element == "routerboard",
    "wlan.mesh.id": lambda b: b.kind == "mesh",
    "wlan.fixed.capabilities.ibss": lambda b: b.kind == "ibss",
    "wps.wifi_protected_setup_state": lambda b: b.wps,
    "wps.ap_setup_locked": lambda b: b.wps == "locked",
    "wlan.ht.info.ht_protection": lambda b: b.is_ht(),
    "wlan.vht.mcsset.rxmcsmap": lambda b: b.is_vht(),
    "wlan.country_info.code": lambda b: b.country,
}
BITS = ("wlan.extcap.b19", "wlan.fixed.capabilities.ibss")
# Announced now and then.
EVENTS = {"wlan.csa.new_channel_number", "wlan.quiet.duration"}
IDENTITY = ("wlan.bssid", "wlan.ds.current_channel", "wlan.ht.info.primarychannel", "wlan.ssid")
FIELDS = [*IDENTITY, *SECURITY_FIELDS, *WIDTH_FIELDS, *FEATURES, *EVENTS]


def tshark(file: Path, *arguments: str) -> str:
    command = ["tshark", "-n", "-r", str(file), *arguments]
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def decode(file: Path) -> list[dict[str, str]]:
    """The fields of each frame; several values of one are separated by semicolons."""
    columns = [part for name in FIELDS for part in ("-e", name)]
    lines = tshark(file, "-T", "fields", "-E", "separator=/t", "-E", "aggregator=;", *columns)
    return [dict(zip(FIELDS, line.split("\t"))) for line in lines.split("\n")[:-1]]


@unittest.skipUnless(shutil.which("tshark"), "needs tshark, which is not here")
class SeenByTshark(unittest.TestCase):
    described: dict[tuple[str, int], Beacon]  # by BSSID and channel
    recorded: list[dict[str, Any]]  # one record for each run of elements of a network
    seen: list[dict[str, str]]  # what tshark makes of each
    complaints: str

    @classmethod
    def setUpClass(cls) -> None:
        cls.described = {
            (beacon.bssid, beacon.channel): beacon
            for description in DESCRIPTIONS
            for network in read_place(description).networks
            for beacon in network.beacons()
        }
        distinct = {
            (record["bssid"], record["informationElementData"]): record
            for description in DESCRIPTIONS
            for scan in scans_of(description)
            for record in scan["networks"]
        }
        cls.recorded = list(distinct.values())
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder) / "beacons.pcap"
            file.write_bytes(capture(cls.recorded))
            cls.seen = decode(file)
            cls.complaints = tshark(file, "-Y", "_ws.malformed or _ws.expert")

    def each(self) -> Iterator[tuple[Beacon, dict[str, Any], dict[str, str]]]:
        """Each beacon recorded: its description, its record, and what tshark sees of it."""
        for record, seen in zip(self.recorded, self.seen):
            yield self.described[record["bssid"], record["channelNumber"]], record, seen

    def test_no_frame_is_malformed(self) -> None:
        self.assertEqual(self.complaints, "")
        self.assertEqual(len(self.seen), len(self.recorded))

    def test_every_network_is_heard_somewhere(self) -> None:
        heard = {(record["bssid"], record["channelNumber"]) for record in self.recorded}
        self.assertEqual(heard, set(self.described))

    def test_names(self) -> None:
        for beacon, record, seen in self.each():
            with self.subTest(beacon.bssid):
                text = seen["wlan.ssid"]
                name = b"" if text == "<MISSING>" else bytes.fromhex(text)
                if beacon.hidden or beacon.kind == "mesh":
                    self.assertFalse(any(name))
                else:
                    self.assertEqual(name, beacon.ssid.encode(beacon.charset))
                is_text = any(name) and beacon.charset == "utf-8"
                self.assertEqual(record.get("ssid"), name.decode() if is_text else None)
        names = {record.get("ssid", "") for record in self.recorded}
        self.assertIn(32, {len(name.encode()) for name in names})
        self.assertTrue(any("," in name and '"' in name for name in names))

    def test_channels(self) -> None:
        for beacon, record, seen in self.each():
            with self.subTest(beacon.bssid):
                told = {seen["wlan.ds.current_channel"], seen["wlan.ht.info.primarychannel"]} - {""}
                self.assertLessEqual(told, {str(record["channelNumber"])})
                self.assertTrue(told or beacon.generation == "a")

    def test_security(self) -> None:
        for beacon, _, seen in self.each():
            with self.subTest(beacon.bssid):
                self.assertEqual(tuple(seen[f] for f in SECURITY_FIELDS), SECURITY[beacon.security])
        self.assertEqual({b.security for b in self.described.values()}, set(SECURITY))

    def test_widths(self) -> None:
        for beacon, _, seen in self.each():
            with self.subTest(beacon.bssid):
                offset, code, centre, second = (seen[field] for field in WIDTH_FIELDS)
                offsets, codes, distances = WIDTHS[beacon.width]
                self.assertIn(offset, offsets)
                self.assertIn(code, codes)
                if centre not in ("", "0"):
                    self.assertIn(abs(int(centre) - beacon.channel), distances)
                self.assertEqual(second not in ("", "0"), beacon.width == "80+80")
        self.assertEqual({beacon.width for beacon in self.described.values()}, set(WIDTHS))

    def test_features(self) -> None:
        for field, expected in FEATURES.items():
            with self.subTest(field):
                absent = ("", "0") if field in BITS else ("",)
                wanted = {key for key, beacon in self.described.items() if expected(beacon)}
                found = {(beacon.bssid, beacon.channel)
                         for beacon, _, seen in self.each() if seen[field] not in absent}
                self.assertEqual(found, wanted)
                self.assertTrue(found)

    def test_announcements_and_loads_come_and_go(self) -> None:
        values = defaultdict(set)
        for beacon, _, seen in self.each():
            for field in (*EVENTS, "wlan.qbss.scount"):
                values[beacon.bssid, field].add(seen[field])
        for field in EVENTS:
            changing = [v for (_, name), v in values.items() if name == field and len(v) > 1]
            self.assertTrue(changing, field)
        loads = [len(v) for (_, name), v in values.items() if name == "wlan.qbss.scount"]
        self.assertGreater(max(loads), 4)


if __name__ == "__main__":
    unittest.main()
