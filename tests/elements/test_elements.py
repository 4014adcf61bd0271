"""The decoded elements as the program gives them away, and beside tshark's reading of them."""

import json
import os
import re
import shutil
import subprocess
import unittest
from collections import Counter, defaultdict
from collections.abc import Callable, Iterator
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from typing import Any

CLI = os.environ["TESSARA_CLI"]
CAPTURES = sorted(Path(os.environ.get("TESSARA_CAPTURES") or os.devnull).glob("*.pcap"))

Json = dict[str, Any]


def decode(run: bytes, **environment: str) -> list[Json]:
    """The elements of a run, as the program shows them to other programs."""
    command = [CLI, "elements", "--format", "json", "--hex", run.hex()]
    output = subprocess.run(command, check=True, capture_output=True, text=True,
                            env={**os.environ, **environment}).stdout
    return json.loads(output)


class Program(unittest.TestCase):
    def test_what_is_absent_has_no_key(self) -> None:
        rates, rsn, mesh = decode(bytes.fromhex("010182 30080100000fac040000 7102 0101"))
        self.assertEqual(rates, {
            "ieID": 1, "ieLength": 1, "ieName": "Supported Rates", "ieSummary": "1(B) Mbps",
            "ieIdentifier": "id=1", "ieDescription": "",
            "fields": [
                {"fieldName": "Element ID", "fieldValue": "1"},
                {"fieldName": "Length", "fieldValue": "1", "fieldNotes": "bytes"},
                {"fieldName": "Supported Rate", "fieldValue": "1",
                 "fieldNotes": "Mbps (DSSS) (BSS Basic Rate)"},
            ],
        })
        self.assertEqual(rsn["fields"][6],
                         {"fieldName": "Pairwise Cipher Suite List", "fieldSubfields": []})
        self.assertEqual(rsn["fields"][-1]["fieldSubfields"][0],
                         {"fieldSubfieldName": ".... .... .... ...0",
                          "fieldValue": "RSN Pre-Authentication Capabilities",
                          "fieldNotes": "Not supported"})
        self.assertEqual((mesh["ieSummary"], len(mesh["fields"])), ("", 2))

    def test_a_byte_order_mark_is_part_of_a_name(self) -> None:
        element, = decode(bytes.fromhex("0004 efbbbf48"))
        self.assertEqual(element["ieSummary"], "\ufeffH")

    def test_a_name_forges_no_rows_in_a_terminal(self) -> None:
        name = "x\n    RSN Version: 9\x1b[2J"
        run = bytes((0, len(name))) + name.encode()
        text = subprocess.run([CLI, "elements", "--hex", run.hex()], check=True,
                              capture_output=True, text=True).stdout
        self.assertEqual(text.count("\n"), 5)
        self.assertNotIn("\x1b", text)

    def test_descriptions_are_for_english_of_no_region(self) -> None:
        for languages, described in {"en": True, "en:de": True, "en_GB:en": False, "de:en": False,
                                     "": False}.items():
            with self.subTest(languages):
                known, unknown = decode(bytes.fromhex("030106 4401ab"), LANGUAGE=languages)
                text = "Identifies the current channel number used by a direct-sequence (DS)" \
                       " 802.11 network."
                self.assertEqual(known["ieDescription"], text if described else "")
                self.assertEqual(unknown["ieDescription"], "")


# What the program says ---------------------------------------------------------------------------


def flat(fields: list[Json]) -> Iterator[Json]:
    for field in fields:
        yield field
        yield from flat(field.get("fieldSubfields", []))


def entry(element: Json, name: str) -> list[Json]:
    """The entries of a name, in their order."""
    return [field for field in flat(element["fields"]) if field.get("fieldName") == name]


def values(element: Json, name: str) -> list[str]:
    return [field.get("fieldValue", "") for field in entry(element, name)]


def bits(fields: list[Json], name: str) -> list[int]:
    """The numbers that the bits of a name make, by their patterns."""
    return [int(re.sub("[ .]", "", field["fieldSubfieldName"]), 2) for field in flat(fields)
            if "fieldSubfieldName" in field and field["fieldValue"] == name]


def is_vendor(element: Json, oui: str, kind: int) -> bool:
    return element["ieIdentifier"] == f"id=221,oui={oui},type={kind}"


Read = Callable[[Json], list[Any]]  # the values of one element, to be compared


def of(identifier: int, read: Read) -> Read:
    return lambda element: read(element) if element["ieID"] == identifier else []


def of_microsoft(kind: int, read: Read) -> Read:
    return lambda element: read(element) if is_vendor(element, "00-50-F2", kind) else []


def numbers(name: str) -> Read:
    return lambda element: [int(value, 0) for value in values(element, name)]


def texts(name: str) -> Read:
    return lambda element: values(element, name)


def bits_of(group: str, name: str) -> Read:
    return lambda element: bits(entry(element, group), name)


def oui_numbers(name: str) -> Read:
    return lambda element: [int(value.replace("-", ""), 16) for value in values(element, name)]


def type_numbers(name: str) -> Read:
    return lambda element: [int(field["fieldNotes"].strip("()")) for field in entry(element, name)]


def ssid(element: Json) -> list[str]:
    name = [value.replace(" ", "").lower() for value in values(element, "SSID Data")]
    return name or ["<MISSING>"]


def rates(element: Json) -> list[int]:
    """In units of 500 kbit/s, with the bit of a basic rate."""
    return [int(float(field["fieldValue"]) * 2) | (0x80 if "Basic" in field["fieldNotes"] else 0)
            for field in entry(element, "Supported Rate")]


def environment(element: Json) -> list[int]:
    return [ord({"Any": " ", "Outdoor Only": "O", "Indoor Only": "I"}[value])
            for value in values(element, "Environment")]


def indices(stream: int, group: str) -> Read:
    """The eight indices of a stream, from their group or from their bare bits."""
    first = 8 * stream
    def read(element: Json) -> list[int]:
        if element["ieID"] not in (45, 61):
            return []
        grouped = [int(value, 0) >> first for value in values(element, group)]
        return grouped or bits(element["fields"], f"Rx MCS Bitmask Bits {first}-{first + 7}")
    return read


def methods(element: Json) -> list[int]:
    """The configuration methods that have names here."""
    return [sum(int("".join(pattern.split()).replace(".", "0"), 2)
                for pattern in (item["fieldSubfieldName"] for item in group["fieldSubfields"]))
            for group in entry(element, "Configuration Methods")]


def version(element: Json) -> list[int]:
    return [int(value.replace(".", ""), 16) for value in values(element, "Version")]


def setup_state(element: Json) -> list[int]:
    return [{"Not configured": 1, "Configured": 2}[value]
            for value in values(element, "Wi-Fi Protected Setup State")]


# What tshark calls it ----------------------------------------------------------------------------

RSN = 48
WPA, WMM, WPS = 1, 2, 4  # types of Microsoft's

FIELDS: dict[str, Read] = {
    "wlan.ssid": of(0, ssid),
    "wlan.supported_rates": of(1, rates),
    "wlan.extended_supported_rates": of(50, rates),
    "wlan.ds.current_channel": of(3, numbers("Current Channel")),
    "wlan.country_info.code": of(7, texts("Country Code")),
    "wlan.country_info.environment": of(7, environment),
    "wlan.country_info.fnm.fcn": of(7, numbers("First Channel")),
    "wlan.country_info.fnm.nc": of(7, numbers("Number of Channels")),
    "wlan.country_info.fnm.mtpl": of(7, numbers("Maximum Transmit Power Level")),
    "wlan.qbss.scount": of(11, numbers("Station Count")),
    "wlan.qbss.cu": of(11, numbers("Channel Utilization")),
    "wlan.qbss.adc": of(11, numbers("Available Admission Capacity")),
    "wlan.rsn.version": of(RSN, numbers("RSN Version")),
    "wlan.rsn.gcs.oui": of(RSN, oui_numbers("Group Cipher Suite OUI")),
    "wlan.rsn.gcs.type": of(RSN, type_numbers("Group Cipher Suite Type")),
    "wlan.rsn.pcs.count": of(RSN, numbers("Pairwise Cipher Suite Count")),
    "wlan.rsn.pcs.oui": of(RSN, oui_numbers("Pairwise Cipher Suite OUI")),
    "wlan.rsn.pcs.type": of(RSN, type_numbers("Pairwise Cipher Suite Type")),
    "wlan.rsn.akms.count": of(RSN, numbers("Auth Key Management Suite Count")),
    "wlan.rsn.akms.oui": of(RSN, oui_numbers("Auth Key Management Suite OUI")),
    "wlan.rsn.akms.type": of(RSN, type_numbers("Auth Key Management Suite Type")),
    "wlan.rsn.capabilities": of(RSN, numbers("RSN Capabilities")),
    "wlan.wfa.ie.wpa.version": of_microsoft(WPA, numbers("WPA Version")),
    "wlan.wfa.ie.wpa.mcs.oui": of_microsoft(WPA, oui_numbers("Multicast Cipher Suite OUI")),
    "wlan.wfa.ie.wpa.mcs.type": of_microsoft(WPA, type_numbers("Multicast Cipher Suite Type")),
    "wlan.wfa.ie.wpa.ucs.count": of_microsoft(WPA, numbers("Unicast Cipher Suite Count")),
    "wlan.wfa.ie.wpa.ucs.type": of_microsoft(WPA, type_numbers("Unicast Cipher Suite Type")),
    "wlan.wfa.ie.wpa.akms.count": of_microsoft(WPA, numbers("Auth Key Management Suite Count")),
    "wlan.wfa.ie.wpa.type": of_microsoft(WPA, type_numbers("Auth Key Management Suite Type")),
    "wlan.wfa.ie.wme.subtype": of_microsoft(WMM, lambda e: [
        ["Information Element", "Parameter Element"].index(v) for v in values(e, "WMM Subtype")]),
    "wlan.wfa.ie.wme.version": of_microsoft(WMM, numbers("WMM Version")),
    "wlan.wfa.ie.wme.qos_info": of_microsoft(WMM, numbers("WMM QoS Info")),
    "wlan.wfa.ie.wme.acp.txop_limit": of_microsoft(WMM, numbers("TXOP Limit")),
    "wps.version": of_microsoft(WPS, version),
    "wps.wifi_protected_setup_state": of_microsoft(WPS, setup_state),
    "wps.device_name": of_microsoft(WPS, texts("Device Name")),
    "wps.manufacturer": of_microsoft(WPS, texts("Manufacturer")),
    "wps.model_name": of_microsoft(WPS, texts("Model")),
    "wps.model_number": of_microsoft(WPS, texts("Model Number")),
    "wps.serial_number": of_microsoft(WPS, texts("Serial Number")),
    "wps.uuid_e": of_microsoft(WPS, lambda e: [v.lower() for v in values(e, "UUID-E")]),
    "wps.config_methods": of_microsoft(WPS, methods),
    **{f"wlan.ht.mcsset.rxbitmask.{8 * stream}to{8 * stream + 7}": indices(stream, group)
       for stream, group in enumerate(("One Spatial Stream", "Two Spatial Streams",
                                       "Three Spatial Streams", "Four Spatial Streams"))},
}

# Bits, by tshark's name of them, in the groups that the program shows.
BITS: dict[str, tuple[Callable[[Read], Read], str, dict[str, str]]] = {
    "wlan.rsn.capabilities.": (lambda read: of(RSN, read), "RSN Capabilities", {
        "preauth": "RSN Pre-Authentication Capabilities",
        "no_pairwise": "RSN No Pairwise Capabilities",
        "ptksa_replay_counter": "RSN PTKSA Replay Counter Capabilities",
        "gtksa_replay_counter": "RSN GTKSA Replay Counter Capabilities",
        "mfpr": "Management Frame Protection Required",
        "mfpc": "Management Frame Protection Capable",
        "jmr": "Joint Multi-band RSNA", "peerkey": "PeerKey Enabled"}),
    "wlan.wfa.ie.wme.acp.": (lambda read: of_microsoft(WMM, read), "ACI / AIFSN Field", {
        "aci": "ACI", "acm": "Admission Control Mandatory", "aifsn": "AIFSN"}),
    "wlan.wfa.ie.wme.acp.ecw.": (lambda read: of_microsoft(WMM, read), "ECW", {
        "max": "ECW Max", "min": "ECW Min"}),
    "wlan.ht.capabilities.": (lambda read: of(45, read), "HT Capabilities Info", {
        "ldpccoding": "LDPC Coding Capability", "width": "Supported Channel Width Set",
        "sm": "SM Power Save", "green": "HT Greenfield", "short20": "Short GI for 20 MHz",
        "short40": "Short GI for 40 MHz", "txstbc": "Tx STBC", "rxstbc": "Rx STBC",
        "delayedblockack": "HT Delayed Block ACK", "amsdu": "Maximum A-MSDU Length",
        "dsscck": "DSSS/CCK Mode in 40 MHz", "psmp": "PSMP",
        "40mhzintolerant": "Forty MHz Intolerant", "lsig": "L-SIG TXOP Protection Support"}),
    "wlan.ht.ampduparam.": (lambda read: of(45, read), "A-MPDU Parameters", {
        "maxlength": "Maximum A-MPDU Length Exponent",
        "mpdudensity": "Minimum MPDU Start Spacing"}),
    "wlan.htex.capabilities.": (lambda read: of(45, read), "HT Extended Capabilities", {
        "pco": "PCO", "transtime": "PCO Transition Time", "mcs": "MCS Feedback",
        "htc": "+HTC Support", "rdresponder": "RD (Reverse Direction) Responder"}),
    "wlan.txbf.": (lambda read: of(45, read), "Transmit Beamforming (TxBF) Capabilities", {
        "txbf": "Implicit TxBF Receiving", "rxss": "Receive Staggered Sounding",
        "txss": "Transmit Staggered Sounding", "rxndp": "Receive NDP (Null Data Packet)",
        "txndp": "Transmit NDP (Null Data Packet)", "impltxbf": "Implicit TxBF",
        "calibration": "Calibration", "csi": "Explicit CSI TxBF",
        "mingroup": "Minimal Grouping", "csinumant": "CSI Number of BF Antennas Supported",
        "csi.maxrows": "CSI Max Number of Rows Beamformer Supported",
        "channelest": "Channel Estimation"}),
    "wlan.asel.": (lambda read: of(45, read), "ASEL (Antenna Selection) Capabilities", {
        "capable": "Antenna Selection", "rx": "Rx ASEL", "sppdu": "Tx Sounding PPDUs"}),
    "wlan.vht.capabilities.": (lambda read: of(191, read), "VHT Capabilities Info", {
        "maxmpdulength": "Maximum MPDU Length",
        "supportedchanwidthset": "Supported Channel Width Set", "rxldpc": "Rx LDPC",
        "short80": "Short GI for 80 MHz", "short160": "Short GI for 160 MHz and 80+80 MHz",
        "txstbc": "Tx STBC", "rxstbc": "Rx STBC",
        "subeamformer": "Single User (SU) Beamformer Capable",
        "subeamformee": "Single User (SU) Beamformee Capable",
        "beamformee_sts_cap": "Compressed Steering Number of Beamforming Antennas Supported",
        "soundingdimensions": "Number of Sounding Dimensions",
        "mubeamformer": "Multi User (MU) Beamformer Capable",
        "mubeamformee": "Multi User (MU) Beamformee Capable",
        "vhttxopps": "VHT TxOP Power-Save", "vhthtc": "+HTC-VHT Capable",
        "maxampdu": "Max A-MPDU Length Exponent", "linkadapt": "VHT Link Adaptation",
        "rxpatconsist": "Rx Antenna Pattern Consistency",
        "txpatconsist": "Tx Antenna Pattern Consistency"}),
    **{f"wlan.vht.mcsset.{way}mcsmap.": (
        lambda read: of(191, read), f"{way.title()} MCS Map",
        {f"ss{stream}": f"{way.title()} {stream} SS" for stream in range(1, 9)})
       for way in ("rx", "tx")},
}
TEXTS = {"wlan.ssid", "wlan.country_info.code", "wps.device_name", "wps.manufacturer",
         "wps.model_name", "wps.model_number", "wps.serial_number", "wps.uuid_e"}
FIELDS |= {prefix + suffix: kind(bits_of(group, name))
           for prefix, (kind, group, names) in BITS.items() for suffix, name in names.items()}


# What is meant to differ -------------------------------------------------------------------------

# An element that the end of the frame cuts short is as long as its bytes for tshark; the program
# shows the length that the element tells, and zeros. Compared with the shorter length.


def cut(run: bytes) -> list[bytes]:
    elements = []
    while len(run) >= 2:
        content = run[2:2 + run[1]]
        elements.append(bytes((run[0], len(content))) + content)
        run = run[2 + run[1]:]
    return elements


# HT elements from before the standard, in vendor elements, are bytes to the program and HT elements
# to tshark. The program is given them as such.
DRAFTS = {b"\x00\x90\x4c\x33": 45, b"\x00\x90\x4c\x34": 61}


def out_of_draft(element: bytes) -> bytes:
    identifier = DRAFTS.get(element[2:6]) if element[0] == 221 else None
    return bytes((identifier, element[1] - 4)) + element[6:] if identifier else element


# A number of suites that the element does not hold makes tshark give up.
GIVEN_UP = "wlan.rsn.pcs.count.invalid"
# Blanks around a device name are not shown.
TRIMMED = "wps.device_name"


def value(field: str, text: str) -> int | str:
    """A value of tshark's, a number if the program's is one."""
    if field == TRIMMED:
        return text.strip()
    if field in TEXTS:
        return text
    return {"True": 1, "False": 0}.get(text) or int(text, 0)


# -------------------------------------------------------------------------------------------------

BEACONS = "wlan.fc.type_subtype == 0x0008 || wlan.fc.type_subtype == 0x0005"
FIXED = 12  # bytes before the elements
BATCH = 500  # elements; a command line has room for so many

Frame = tuple[bytes, dict[str, str]]


def tshark(file: Path, *arguments: str) -> str:
    command = ["tshark", "-n", "-r", str(file), "-Y", BEACONS, *arguments]
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def frames_of(file: Path) -> list[Frame]:
    """The elements of each beacon and probe response, and what tshark says of them."""
    frames = json.loads(tshark(file, "-T", "jsonraw", "-j", "wlan.mgt"))
    names = [*FIELDS, GIVEN_UP]
    columns = [part for name in names for part in ("-e", name)]
    lines = tshark(file, "-T", "fields", "-E", "separator=/t", "-E", "aggregator=;", *columns)
    return [(bytes.fromhex(frame["_source"]["layers"]["wlan.mgt_raw"][0])[FIXED:],
             dict(zip(names, line.split("\t"))))
            for frame, line in zip(frames, lines.split("\n")[:-1], strict=True)]


@unittest.skipUnless(shutil.which("tshark"), "needs tshark, which is not here")
@unittest.skipUnless(CAPTURES, "needs captures, which are not here")
class SeenByTshark(unittest.TestCase):
    def test_every_beacon_says_the_same(self) -> None:
        with ThreadPoolExecutor(2) as pool:
            frames = [frame for frames in pool.map(frames_of, CAPTURES) for frame in frames]
        elements = [[out_of_draft(element) for element in cut(run)] for run, _ in frames]
        distinct = list(dict.fromkeys(element for run in elements for element in run))
        decoded: dict[bytes, Json] = {}
        for start in range(0, len(distinct), BATCH):
            batch = distinct[start:start + BATCH]
            decoded.update(zip(batch, decode(b"".join(batch)), strict=True))

        compared: Counter[str] = Counter()
        different: dict[str, set[str]] = defaultdict(set)
        for run, (_, seen) in zip(elements, frames):
            for field, read in FIELDS.items():
                if field.startswith("wlan.rsn.") and seen[GIVEN_UP]:
                    continue
                ours = [said for element in run for said in read(decoded[element])]
                theirs = [value(field, text) for text in seen[field].split(";") if seen[field]]
                compared[field] += len(ours)
                if ours != theirs:
                    different[field].add(f"{ours} and not {theirs}")
        print(f"{len(frames)} frames, {len(distinct)} distinct elements, "
              f"{compared.total()} values of {len(FIELDS)} fields")
        self.assertEqual(different, {})
        self.assertEqual([field for field in FIELDS if not compared[field]], [])


if __name__ == "__main__":
    unittest.main()
