"""What the program derives from beacons, of real captures and of the bundled recordings, against
what tshark reads in them.

Of each network the frame decides that the program takes its last state from: within the last sweep
that heard it the last probe response, or else the last beacon. tshark names what that frame's
elements hold, and the functions below say what follows from it.
"""

import gzip
import json
import os
import shutil
import subprocess
import tempfile
import unittest
from collections import Counter
from collections.abc import Callable
from fractions import Fraction
from pathlib import Path
from typing import Any

from frames import capture as capture_of

RECORDINGS = sorted((Path(__file__).resolve().parents[2] / "recordings").glob("*.jsonl.gz"))
SWEEP = 3.0  # seconds of capture time
UNKNOWN = 2**63 - 1
HIDDEN = "<Hidden Network>"

FIELDS = {
    "time": "frame.time_epoch", "kind": "wlan.fc.type_subtype", "bssid": "wlan.bssid",
    "fcs": "wlan.fcs.status", "frequency": "radiotap.channel.freq",
    "interval": "wlan.fixed.beacon", "privacy": "wlan.fixed.capabilities.privacy",
    "ibss": "wlan.fixed.capabilities.ibss", "tags": "wlan.tag.number", "ssid": "wlan.ssid",
    "rates": "wlan.supported_rates", "more_rates": "wlan.extended_supported_rates",
    "ds": "wlan.ds.current_channel", "country": "wlan.country_info.code",
    "stations": "wlan.qbss.scount", "load": "wlan.qbss.cu",
    "primary": "wlan.ht.info.primarychannel", "secondary": "wlan.ht.info.secchanoffset",
    "protection": "wlan.ht.info.ht_protection", "ht_wide": "wlan.ht.capabilities.width",
    "short20": "wlan.ht.capabilities.short20", "short40": "wlan.ht.capabilities.short40",
    "mcs0": "wlan.ht.mcsset.rxbitmask.0to7", "mcs8": "wlan.ht.mcsset.rxbitmask.8to15",
    "mcs16": "wlan.ht.mcsset.rxbitmask.16to23", "mcs24": "wlan.ht.mcsset.rxbitmask.24to31",
    "short80": "wlan.vht.capabilities.short80", "short160": "wlan.vht.capabilities.short160",
    "vht1": "wlan.vht.mcsset.txmcsmap.ss1", "vht2": "wlan.vht.mcsset.txmcsmap.ss2",
    "vht3": "wlan.vht.mcsset.txmcsmap.ss3", "vht4": "wlan.vht.mcsset.txmcsmap.ss4",
    "vht_width": "wlan.vht.op.channelwidth", "vht_centre": "wlan.vht.op.channelcenter0",
    "rsn_ciphers": "wlan.rsn.pcs.type", "rsn_keys": "wlan.rsn.akms.type",
    "mfp": "wlan.rsn.capabilities.mfpc", "wpa_ciphers": "wlan.wfa.ie.wpa.ucs.type",
    "wpa_keys": "wlan.wfa.ie.wpa.type", "microsoft": "wlan.wfa.ie.type",
    "over_ds": "wlan.mobility_domain.ft_capab.ft_over_ds",
    "transition": "wlan.extcap.b19", "hotspot": "wlan.hs20.indication.dgaf_disabled",
    "wps_state": "wps.wifi_protected_setup_state", "wps_locked": "wps.ap_setup_locked",
    "cisco_name": "wlan.cisco.ccx1.name", "cisco_clients": "wlan.cisco.ccx1.clients",
    "aruba_name": "wlan.vs.aruba.ap_name", "router_name": "wlan.vs.routerboard.subtype1_data",
    "client_mfp": "wlan.aironet.clientmfp", "dtpc": "wlan.aironet.dtpc",
}


class Frame:
    """A beacon or a probe response as tshark reads it."""

    def __init__(self, line: str) -> None:
        self._values = dict(zip(FIELDS, line.split("\t")))

    def texts(self, name: str) -> list[str]:
        return self._values[name].split(";") if self._values[name] else []

    def all(self, name: str) -> list[int]:
        return [int(value, 0) for value in self.texts(name)]

    def first(self, name: str, absent: int = 0) -> int:
        return (self.all(name) or [absent])[0]

    def last(self, name: str, absent: int = 0) -> int:
        return (self.all(name) or [absent])[-1]

    def has(self, *tags: int) -> bool:
        return not set(tags).isdisjoint(self.all("tags"))

    @property
    def time(self) -> float:
        return float(self.texts("time")[0])

    @property
    def is_probe_response(self) -> bool:
        return self.first("kind") == 5

    @property
    def counts(self) -> bool:
        """Whether the frame came through in one piece, up to its elements."""
        return self.first("fcs", 1) != 0 and bool(self.texts("interval"))


# What follows from the elements -------------------------------------------------------------------

def channel(frame: Frame) -> int:
    told = {3: frame.first("ds"), 61: frame.first("primary")}
    named = [told[tag] for tag in frame.all("tags") if told.get(tag)]
    if named:
        return named[0]
    mhz = frame.first("frequency")
    return 14 if mhz == 2484 else (mhz - (5000 if mhz > 5000 else 2407)) // 5 if mhz else 0


def is_5ghz(frame: Frame) -> bool:
    return 36 <= channel(frame) <= 165


def width(frame: Frame) -> int:
    if frame.last("vht_width") in (1, 2, 3):
        return frame.last("vht_width") + 2
    narrow = 0 in frame.all("ht_wide")
    return 2 if not narrow and frame.last("secondary") in (1, 3) else 1


def secondary(frame: Frame) -> int:
    offset = frame.last("secondary")
    return offset if width(frame) > 2 or width(frame) == 2 and offset in (1, 3) else 0


def centre(frame: Frame) -> int:
    if width(frame) in (3, 4):
        return frame.last("vht_centre")
    distance = {1: 2, 3: -2}.get(secondary(frame), 0)
    return channel(frame) + (distance if width(frame) == 2 else 0)


def ht_indexes(frame: Frame) -> list[int]:
    if not frame.has(45):
        return []
    # HT Operation has a set of the same fields.
    place = [tag for tag in frame.all("tags") if tag in (45, 61)].index(45)
    bits = sum(frame.all(name)[place] << shift
               for name, shift in (("mcs0", 0), ("mcs8", 8), ("mcs16", 16), ("mcs24", 24)))
    return [index for index in range(32) if bits >> index & 1]


def vht_streams(frame: Frame) -> dict[int, int]:
    """The highest MCS index of each number of streams that is supported."""
    codes = {stream: frame.last(f"vht{stream}", 3) for stream in range(1, 5)}
    return {stream: 7 + code for stream, code in codes.items() if code < 3}


def streams(frame: Frame) -> int:
    counted = max(ht_indexes(frame), default=0) // 8 + 1 if frame.has(45) else 0
    return len(vht_streams(frame)) or counted or int(phy_mode(frame) != 0)


BITS = [Fraction(bits * coding) for bits, coding in (
    (1, Fraction(1, 2)), (2, Fraction(1, 2)), (2, Fraction(3, 4)), (4, Fraction(1, 2)),
    (4, Fraction(3, 4)), (6, Fraction(2, 3)), (6, Fraction(3, 4)), (6, Fraction(5, 6)),
    (8, Fraction(3, 4)), (8, Fraction(5, 6)))]
SUBCARRIERS = {1: 52, 2: 108, 3: 234, 4: 468}
NOT_VALID = {(1, 1, 9), (1, 2, 9), (3, 3, 6), (4, 3, 9)}  # width, streams, VHT index


def megabits(wide: int, number: int, index: int, short: bool) -> float:
    """Data bits of an OFDM symbol over its microseconds, to one decimal."""
    symbol = Fraction(36 if short else 40, 10)
    rate = SUBCARRIERS[wide] * number * BITS[index] / symbol
    return int(rate * 10 + Fraction(1, 2)) / 10


def ht_rates(frame: Frame) -> set[float]:
    wide = 2 if width(frame) == 2 else 1  # also where VHT is wider
    # The table's own number for index 14 stands as it is.
    return {130.3 if (wide, index, gi) == (1, 14, 1)
            else megabits(wide, index // 8 + 1, index % 8, bool(gi))
            for index in ht_indexes(frame)
            for gi in {0, frame.last("short40" if wide == 2 else "short20")}}


def vht_rates(frame: Frame) -> set[float]:
    wide = width(frame)
    name = {1: "short20", 2: "short40", 3: "short80", 4: "short160"}.get(wide)
    if name is None:
        return set()
    return {round(number * (433.334 if (wide, index, gi) == (3, 9, 1)
                            else megabits(wide, 1, index, bool(gi))), 3)
            for number, top in vht_streams(frame).items() for index in range(top + 1)
            for gi in {0, frame.last(name)} if (wide, number, index) not in NOT_VALID}


def rates(frame: Frame) -> list[float]:
    octets = frame.all("rates") + frame.all("more_rates")
    legacy = {(octet & 0x7f) / 2: octet >> 7 for octet in octets}
    signed = [-rate if basic else rate for rate, basic in legacy.items()]
    return sorted([*((ht_rates(frame) | vht_rates(frame)) - legacy.keys()), *signed], key=abs)


def basic_rates(frame: Frame) -> list[float]:
    return [-rate for rate in rates(frame) if rate < 0]


def phy_mode(frame: Frame) -> int:
    magnitudes = {abs(rate) for rate in rates(frame)}
    ofdm = bool(magnitudes & {6, 12, 18, 24, 36, 48, 54})
    ht = 8 if frame.has(61) else 0
    if is_5ghz(frame):
        return 16 if frame.has(191, 192) else ht | (1 if ofdm else 0)
    if not 1 <= channel(frame) <= 14:
        return ht
    return ht | (2 if magnitudes & {1, 2, 5.5, 11} else 0) | (4 if ofdm else 0)


def has_wpa(frame: Frame) -> bool:
    return 1 in frame.all("microsoft")


def security(frame: Frame) -> int:
    enterprise = not {1, 3, 5}.isdisjoint(frame.all("rsn_keys") + frame.all("wpa_keys"))
    kinds = {(True, True): (3, 8), (False, True): (2, 7), (True, False): (4, 9),
             (False, False): (1, 1) if frame.first("privacy") else (UNKNOWN, UNKNOWN)}
    return kinds[frame.has(48), has_wpa(frame)][enterprise]


def ciphers(frame: Frame) -> int:
    bits = {1: 1, 2: 2, 4: 4, 5: 8}
    return sum({bits.get(kind, 0) for kind in frame.all("rsn_ciphers") + frame.all("wpa_ciphers")})


def fast_transition(frame: Frame) -> int:
    if not frame.texts("over_ds"):
        return -1
    keys = [set(frame.all(name)) for name, present in
            (("rsn_keys", frame.has(48)), ("wpa_keys", has_wpa(frame))) if present]
    adaptive = any(key.isdisjoint({3, 4}) for key in keys)
    return frame.last("over_ds") + (2 if adaptive else 0)


def amendments(frame: Frame) -> list[str]:
    letters = {
        "d": frame.has(7), "e": frame.has(11) or 2 in frame.all("microsoft"),
        "h": is_5ghz(frame) and frame.has(32, 35, 37, 40), "i": frame.has(48), "k": frame.has(70),
        "p": frame.has(69), "r": frame.has(54), "s": frame.has(113, 114),
        "u": bool(frame.texts("hotspot")), "v": 1 in frame.all("transition"),
        "w": 1 in frame.all("mfp"),
    }
    return [letter for letter, present in letters.items() if present]


def name(frame: Frame) -> str:
    texts = [text for text in frame.texts("ssid") if text != "<MISSING>"]
    try:
        return bytes.fromhex(texts[-1] if texts else "").split(b"\0")[0].decode() or HIDDEN
    except UnicodeDecodeError:
        return HIDDEN


def device_name(frame: Frame) -> str | None:
    names = [frame.texts(maker) for maker in ("cisco_name", "aruba_name", "router_name")]
    return "".join(name[-1] for name in names if name) or None


DERIVED: dict[str, Callable[[Frame], Any]] = {
    "ssid": name,
    "isHidden": lambda frame: name(frame) == HIDDEN,
    "channel": channel,
    "channelWidth": width,
    "channelCenter": centre,
    "secondaryChannelOffset": secondary,
    "streams": streams,
    "rates": rates,
    "minBasicRate": lambda frame: min(basic_rates(frame), default=0),
    "maxBasicRate": lambda frame: max(basic_rates(frame), default=0),
    "phyMode": phy_mode,
    "securityMode": security,
    "cipherType": ciphers,
    "fastBssTransition": fast_transition,
    "amendments": amendments,
    "countryCode": lambda frame: "".join(frame.texts("country")[-1:]).upper() or None,
    "stationCount": lambda frame: frame.last("stations", frame.first("cisco_clients", -1)),
    "channelUtilization": lambda frame: int(frame.last("load") * 100 / 255)
    if frame.texts("load") else -1,
    "htProtection": lambda frame: frame.last("protection", -1),
    "wpsEnabled": lambda frame: 4 in frame.all("microsoft"),
    "wpsConfigured": lambda frame: frame.last("wps_state") == 2,
    "wpsLocked": lambda frame: frame.last("wps_locked") != 0,
    "deviceName": device_name,
    "ccxDTPC": lambda frame: frame.last("dtpc", -1),
    "ccxClientMFP": lambda frame: {"": "", "0": "Disabled", "1": "Enabled"}[
        "".join(frame.texts("client_mfp"))],
    "beaconInterval": lambda frame: round(frame.first("interval") * 1.024, 3),
}

# Where the program is meant to differ: capture, value and what the program says, and why.
INTENDED = {
    ("aircrack-ng_aircrack-ng__wpa.pcap", "amendments", "[]"):
        "tshark takes the frame check sequence, of which the Prism header says nothing, for an"
        " element 54",
    ("recordings.pcap", "deviceName", "Lager Rampe"): "tshark does not know Zebra's element",
}


# Frames and networks ------------------------------------------------------------------------------

def frames_of(capture: Path) -> list[Frame]:
    columns = [part for field in FIELDS.values() for part in ("-e", field)]
    lines = subprocess.run(
        ["tshark", "-n", "-r", capture, "-o", "wlan.check_checksum:TRUE", "-T", "fields",
         "-E", "separator=/t", "-E", "occurrence=a", "-E", "aggregator=;", *columns],
        check=True, capture_output=True, text=True).stdout
    return [Frame(line) for line in lines.split("\n")[:-1]]


def deciding(frames: list[Frame]) -> dict[tuple[str, bool], Frame]:
    """The frame that each network's state comes from, by BSSID and whether on 5 GHz."""
    found: dict[tuple[str, bool], tuple[int, Frame]] = {}
    sweep = 0
    for frame in frames:
        sweep = max(sweep, int((frame.time - frames[0].time) // SWEEP))
        if not frame.counts:
            continue
        key = (frame.texts("bssid")[0].upper(), channel(frame) >= 36)
        last_sweep, last = found.get(key, (-1, frame))
        if last_sweep < sweep or frame.is_probe_response or not last.is_probe_response:
            found[key] = (sweep, frame)
    return {key: frame for key, (_, frame) in found.items()}


def records_of(capture: Path) -> dict[tuple[str, bool], dict[str, Any]]:
    listed = subprocess.run(
        [os.environ["TESSARA_CLI"], "networks", capture, "--sweep", str(SWEEP), "--no-settings",
         "--default", "DeleteIfNotSeen=false", "--format", "json"],
        check=True, capture_output=True, text=True).stdout
    records = [network["record"] for network in json.loads(listed)["networks"]]
    return {(record["bssid"], record["channel"] >= 36): record for record in records}


def rounded(value: Any) -> Any:
    """Numbers come with the digits of their binary form."""
    if isinstance(value, list):
        return [rounded(one) for one in value]
    return round(value, 3) if isinstance(value, float) else value


class Comparison(unittest.TestCase):
    maxDiff = None

    def setUp(self) -> None:
        if not shutil.which("tshark"):
            self.skipTest("needs tshark, which is not here")
        self.compared: Counter[str] = Counter()

    def tearDown(self) -> None:
        if self.compared:
            print(self.compared["ssid"], "networks,", self.compared.total(), "values", end=" ... ")

    def compare(self, capture: Path) -> None:
        records, frames = records_of(capture), deciding(frames_of(capture))
        self.assertEqual(records.keys(), frames.keys(), capture.name)
        for key, record in records.items():
            for value, derive in DERIVED.items():
                if (capture.name, value, str(record[value])) in INTENDED:
                    continue
                with self.subTest(capture.name, bssid=key[0], value=value):
                    self.assertEqual(rounded(record[value]), rounded(derive(frames[key])))
                self.compared[value] += 1


class RealCaptures(Comparison):
    def test_last_state_of_each_network(self) -> None:
        folder = os.environ.get("TESSARA_CAPTURES")
        if not folder:
            self.skipTest("needs captures, TESSARA_CAPTURES does not name a folder of them")
        captures = sorted(Path(folder).glob("*.pcap"))
        self.assertTrue(captures)
        for capture in captures:
            self.compare(capture)


class BundledRecordings(Comparison):
    def test_each_beacon(self) -> None:
        recorded = {network["informationElementData"]: network for file in RECORDINGS
                    for line in gzip.open(file) for network in json.loads(line)["networks"]}
        # As a network of its own.
        networks = [network | {"bssid": f"02:00:00:00:{number >> 8:02x}:{number & 0xff:02x}"}
                    for number, network in enumerate(recorded.values())]
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder) / "recordings.pcap"
            file.write_bytes(capture_of(networks))
            self.compare(file)


if __name__ == "__main__":
    unittest.main()
