"""What a beacon makes of a network's record: bytes on one side, the record's values on the other.

All networks of the tables below are put into one recording, which tessara-cli lists.
"""

import json
import os
import plistlib
import subprocess
import tempfile
import unittest
from dataclasses import dataclass, field
from pathlib import Path
from typing import Any

UNKNOWN = 2**63 - 1
HIDDEN = "<Hidden Network>"


# Elements as hexadecimal text ---------------------------------------------------------------------

def element(identifier: int, content: str) -> str:
    data = bytes.fromhex(content)
    return bytes([identifier, len(data)]).hex() + data.hex()


def ssid(name: str) -> str:
    return element(0, name.encode().hex())


def ht(first: str, mcs: str = "ff000000") -> str:
    """HT Capabilities: 02 not only 20 MHz, 20 and 40 short guard interval at 20 and at 40 MHz."""
    return element(45, first + "0017" + mcs + "00" * 19)


def ht_operation(channel: int, second: str = "00", third: str = "00") -> str:
    """Secondary channel offset in the low bits of the second byte, protection in the third."""
    return element(61, f"{channel:02x}" + second + third + "00" * 19)


def vht(first: str, transmit: str) -> str:
    """VHT Capabilities: 20 and 40 short guard interval at 80 and at 160 MHz; two bits a stream."""
    return element(191, first + "00" * 7 + transmit + "ff0000")


def vht_operation(width: int) -> str:
    return element(192, f"{width:02x}2a000000")


def suites(oui: str, types: str) -> str:
    """A count, and the suites of these types."""
    count = len(types.split())
    return f"{count:02x}00" + "".join(oui + one for one in types.split())


def rsn(management: str = "02", pairwise: str = "04", capabilities: str = "0000") -> str:
    oui = "000fac"
    return element(48, "0100" + oui + "04" + suites(oui, pairwise) + suites(oui, management)
                   + capabilities)


def wpa(management: str = "02", pairwise: str = "02") -> str:
    oui = "0050f2"
    return element(221, oui + "01 0100" + oui + "02" + suites(oui, pairwise)
                   + suites(oui, management))


def text(name: str) -> str:
    return name.encode("latin-1").hex()


COUNTRY = element(7, text("DE ") + "010d14")
B_RATES = element(1, "82848b96")
BG_RATES = element(1, "82848b96 0c183048")
A_RATE = element(1, "8c")
CONFIGURED, LOCKED, VERSION = "1044 0001 02", "1057 0001 01", "104a 0001 10"


def wps(attributes: str) -> str:
    return element(221, "0050f204" + attributes)


# The cases ----------------------------------------------------------------------------------------

@dataclass
class Case:
    """A network: its element bytes, and what its record or its columns are to say."""
    what: str
    elements: str | None
    expected: dict[str, Any]
    at: int | None = 1  # the channel that the Wi-Fi service gives
    given: dict[str, Any] = field(default_factory=dict)  # other keys of the raw scan dictionary
    then: dict[str, Any] | None = None  # keys that change in a second scan


def simple(names: str, *rows: tuple[Any, ...], at: int = 1) -> list[Case]:
    """Cases of one table: what, elements, and the values of these names."""
    return [Case(what, elements, dict(zip(names.split(), values)), at)
            for what, elements, *values in rows]


CASES = [
    # The name.
    *simple(
        "ssid isHidden",
        ("named", ssid("Home"), "Home", False),
        ("no element", "", HIDDEN, True),
        ("of length 0", "0000", HIDDEN, True),
        ("all zeroes", element(0, "00000000"), HIDDEN, True),
        ("up to a zero", element(0, "480069"), "H", False),
        ("an empty one replaces nothing", ssid("Home") + "0000", "Home", False),
        ("a later one does", ssid("Home") + ssid("B"), "B", False),
        ("a byte order mark is part of it", element(0, "efbbbf48"), "\ufeffH", False),
        ("no UTF-8", element(0, "c328"), HIDDEN, True),
        ("32 bytes", ssid("ä" * 16), "ä" * 16, False),
        ("33 bytes at the most", ssid("D" * 40), "D" * 33, False),
        ("cut within a character", ssid("D" * 32 + "ä"), HIDDEN, True),
        ("runs past the end", "0004486f6d", HIDDEN, True),
        ("only an identifier", ssid("Home") + "00", "Home", False),
    ),
    Case("the service's name", "0000", {"ssid": "Den", "isHidden": False}, given={"ssid": "Den"}),
    Case("element before service", ssid("Home"), {"ssid": "Home"}, given={"ssid": "Den"}),
    Case("an element that is no text is none", ssid("Home") + element(0, "ff"), {"ssid": "Den"},
         given={"ssid": "Den"}),
    Case("an empty name of the service", "", {"ssid": HIDDEN, "isHidden": False},
         given={"ssid": ""}),

    # The channel.
    *simple(
        "channel humanReadableChannelBand",
        ("first of two", "030106" + ht_operation(11), 6, "2.4 GHz ISM"),
        ("first of two, other order", ht_operation(11) + "030106", 11, "2.4 GHz ISM"),
        ("the service's", "0000", 44, "5 GHz UNII-1"),
        ("0 is none", "030100", 44, "5 GHz UNII-1"),
        ("0 gives way", "030100 030195", 149, "5 GHz UNII-3"),
        ("beyond the end is absent", "0300", 44, "5 GHz UNII-1"),
        ("beyond the element is not", "0300 400100", 64, "5 GHz UNII-2"),
        ("runs past the end", "0302 06", 44, "5 GHz UNII-1"), at=44),

    # Width and secondary channel.
    *simple(
        "channelWidth secondaryChannelOffset humanReadableChannel channelCenter"
        " humanReadableChannelRange",
        ("no bytes", "", 1, 0, "36", 36, "36"),
        ("nothing of HT", "0000", 1, 0, "36", 36, "36"),
        ("20 MHz only, whatever HT Operation says", ht("00") + ht_operation(36, "01"),
         1, 0, "36", 36, "36"),
        ("above", ht("02") + ht_operation(36, "01"), 2, 1, "36,+1", 38, "36 40"),
        ("below", ht("02") + ht_operation(40, "ff"), 2, 3, "40,-1", 38, "36 40"),
        ("reserved offset", ht("02") + ht_operation(36, "02"), 1, 0, "36", 36, "36"),
        ("no HT Operation", ht("02"), 1, 0, "36", 36, "36"),
        ("HT Operation alone", ht_operation(36, "01"), 2, 1, "36,+1", 38, "36 40"),
        ("80", "03012c" + ht("02") + ht_operation(44, "01") + vht_operation(1),
         3, 1, "44", 42, "36 40 44 48"),
        ("80 over 20 only", ht("00") + ht_operation(36, "01") + vht_operation(1),
         3, 1, "36", 42, "36 40 44 48"),
        ("80 without HT", vht_operation(1), 3, 0, "36", 42, "36 40 44 48"),
        ("80 where no block is", "0301a5" + vht_operation(1), 3, 0, "165", 165, "0"),
        ("160", "030164" + vht_operation(2),
         4, 0, "100", 114, "100 104 108 112 116 120 124 128"),
        ("80+80", vht_operation(3), 5, 0, "36", 36, "0"),
        ("VHT at 40", ht("02") + ht_operation(36, "01") + vht_operation(0),
         2, 1, "36,+1", 38, "36 40"),
        ("reserved VHT width", vht_operation(4), 1, 0, "36", 36, "36"), at=36),
    Case("no element data at all", None,
         {"channelWidth": 0, "channel": 36, "CHANNEL_WIDTH": "", "streams": 0}, at=36),
    Case("the offset goes with HT Operation", ht("02") + ht_operation(36, "01"),
         {"secondaryChannelOffset": 0, "channelWidth": 1}, at=36,
         then={"informationElementData": ht("02")}),
    *[Case(f"protection {code}", ht_operation(1, "00", f"{code | 0xf8:02x}"),
           {"htProtection": code, "HT_PROTECTION": shown})
      for code, shown in enumerate(("None", "Non Member", "20 MHz", "Non-HT Mixed"))],

    # Legacy rates.
    *simple(
        "rates minBasicRate maxBasicRate humanReadableDataRates BASIC_RATES",
        ("basic ones are negative", element(1, "82840b16"),
         [-1, -2, 5.5, 11], 1, 2, "1(B), 2(B), 5.5, 11", "1, 2 Mbps"),
        ("a plain one stands beside its basic like", element(1, "82") + element(50, "02"),
         [-1, 1], 1, 1, "1(B), 1", "1 Mbps"),
        ("a basic one takes the place of its like", element(1, "02") + element(50, "82"),
         [-1], 1, 1, "1(B)", "1 Mbps"),
        ("both lists, in order", element(1, "0c129824") + element(50, "8b"),
         [-5.5, 6, 9, -12, 18], 5.5, 12, "5.5(B), 6, 9, 12(B), 18", "5.5, 12 Mbps"),
        ("once", element(1, "020202"), [1], 0, 0, "1", ""),
        ("membership selectors are rates too", element(1, "ff"), [-63.5], 63.5, 63.5, "63.5(B)",
         "63.5 Mbps"),
        ("runs past the end", "0104 8284", [], 0, 0, "", "")),

    # Rates and streams from MCS sets.
    *simple(
        "rates",
        ("two indexes", ht("00", "81000000"), [6.5, 65]),
        ("short GI at 20", ht("20", "81000000"), [6.5, 7.2, 65, 72.2]),
        ("short GI at another width", ht("40", "01000000"), [6.5]),
        ("one stream at 20, short GI: 65 once", ht("20"),
         [6.5, 7.2, 13, 14.4, 19.5, 21.7, 26, 28.9, 39, 43.3, 52, 57.8, 58.5, 65, 72.2]),
        ("40 with short GI", ht("42", "01000000") + ht_operation(36, "01"), [13.5, 15]),
        ("index 14, with its own number", ht("20", "00400000"), [117, 130.3]),
        ("index 31; 32 has none", ht("00", "00000080 01"), [260]),
        ("HT at 80 is as at 20", ht("02", "01000000") + vht_operation(1), [6.5]),
        ("legacy 6 beside 6.5, 13 in the place of 13", ht("00", "03000000") + element(1, "0c9a"),
         [6, 6.5, -13]),
        ("80 MHz to index 7", vht_operation(1) + vht("00", "fc"),
         [29.3, 58.5, 87.8, 117, 175.5, 234, 263.3, 292.5]),
        ("80 MHz, short GI, to index 9", vht_operation(1) + vht("20", "fe"),
         [29.3, 32.5, 58.5, 65, 87.8, 97.5, 117, 130, 175.5, 195, 234, 260, 263.3, 292.5, 325, 351,
          390, 433.334]),
        ("80 MHz, three streams alone, without index 6", vht_operation(1) + vht("00", "ef"),
         [87.9, 175.5, 263.4, 351, 526.5, 702, 877.5, 1053, 1170]),
        ("160 MHz, three streams alone, to index 8", vht_operation(2) + vht("00", "ef"),
         [175.5, 351, 526.5, 702, 1053, 1404, 1579.5, 1755, 2106]),
        ("160 MHz, one stream, short GI of 80 only", vht_operation(2) + vht("20", "fc"),
         [58.5, 117, 175.5, 234, 351, 468, 526.5, 585]),
        ("20 MHz, two streams alone, to index 8", vht("00", "fb"),
         [13, 26, 39, 52, 78, 104, 117, 130, 156]),
        ("20 MHz, three streams alone, to index 9", vht("00", "ef"),
         [19.5, 39, 58.5, 78, 117, 156, 175.5, 195, 234, 260.1]),
        ("40 MHz, four streams alone, short GI of HT",
         ht("42", "00000000") + ht_operation(36, "01") + vht("00", "3f"),
         [54, 60, 108, 120, 162, 180, 216, 240, 324, 360, 432, 480, 486, 540, 600]),
        ("80+80 has no rates", vht_operation(3) + vht("60", "aa"), []), at=36),
    *simple(
        "streams",
        *[(f"HT {mcs}", ht("00", mcs), streams)
          for mcs, streams in (("00000000", 1), ("ff000000", 1), ("00010000", 2), ("ffff0000", 2),
                               ("ffffff00", 3), ("ffffff01", 4))],
        ("VHT has the last word", ht("02", "ff000000") + vht("00", "ea"), 3),
        ("VHT counts those supported", vht("00", "33"), 2),
        ("VHT without streams", ht("02", "ffff0000") + vht("00", "ff"), 2),
        ("a mode has one at least", A_RATE, 1),
        ("no mode, no streams", "0000", 0), at=36),

    # The PHY mode, and the MCS index that 30 dB allow.
    *simple(
        "phyMode PHY_MODE estimatedMCS",
        ("b", B_RATES, 2, "b", 3),
        ("b/g", BG_RATES, 6, "b/g", 7),
        ("g alone", element(1, "8c"), 4, "g", 7),
        ("9 Mbit/s makes no g", element(1, "8212"), 2, "b", 3),
        ("b/g/n", BG_RATES + ht("00") + ht_operation(1), 14, "b/g/n", 7),
        ("HT Capabilities make no n", BG_RATES + ht("00"), 6, "b/g", 7),
        ("VHT on 2.4 GHz is no ac", B_RATES + ht("00") + ht_operation(1) + vht("00", "fa"),
         10, "b/n", 7),
        ("no band", "0301c8" + B_RATES, 0, "", -1)),
    *simple(
        "phyMode PHY_MODE estimatedMCS",
        ("a", A_RATE, 1, "a", 7),
        ("a/n", A_RATE + ht("00") + ht_operation(36), 9, "a/n", 7),
        ("ac alone", A_RATE + ht("02") + ht_operation(36, "01") + vht("00", "fa"), 16, "ac", 7),
        ("ac by its operation", A_RATE + vht_operation(1), 16, "ac", 6),
        ("ac of a width without table", vht_operation(3), 16, "ac", -1),
        ("9 Mbit/s makes no a", element(1, "92"), 0, "", -1), at=36),
    Case("what an old file says stays", B_RATES + ht("00") + ht_operation(1),
         {"phyMode": 24, "streams": 1}, given={"phyMode": 24}),

    # Security.
    *simple(
        "securityMode shortSecurityMode cipherType cipher",
        ("open", "0000", UNKNOWN, "", 0, "None"),
        ("WPA2", rsn(), 4, "WPA2 (PSK)", 4, "AES"),
        ("WPA2 Enterprise", rsn("01"), 9, "WPA2 (802.1X)", 4, "AES"),
        ("WPA", wpa(), 2, "WPA (PSK)", 2, "TKIP"),
        ("WPA Enterprise", wpa("01"), 7, "WPA (802.1X)", 2, "TKIP"),
        ("both", rsn() + wpa(), 3, "WPA/WPA2 (PSK)", 6, "AES + TKIP"),
        ("both Enterprise", wpa("01") + rsn("01"), 8, "WPA/WPA2 (802.1X)", 6, "AES + TKIP"),
        ("one of both Enterprise", rsn() + wpa("01", "04"), 8, "WPA/WPA2 (802.1X)", 4, "AES"),
        ("both ciphers", rsn(pairwise="04 02"), 4, "WPA2 (PSK)", 6, "AES + TKIP"),
        ("FT-PSK", rsn("04"), 4, "WPA2 (PSK)", 4, "AES"),
        ("FT over 802.1X", rsn("03"), 9, "WPA2 (802.1X)", 4, "AES"),
        ("802.1X with SHA-256", rsn("05"), 9, "WPA2 (802.1X)", 4, "AES"),
        ("PSK with SHA-256", rsn("06"), 4, "WPA2 (PSK)", 4, "AES"),
        ("PSK and 802.1X", rsn("02 01"), 9, "WPA2 (802.1X)", 4, "AES"),
        ("SAE has no kind of its own", rsn("08"), 4, "WPA2 (PSK)", 4, "AES"),
        ("nor OWE", rsn("12"), 4, "WPA2 (PSK)", 4, "AES"),
        ("nor Suite B, whose cipher has no name", rsn("0c", "09"), 4, "WPA2 (PSK)", 0, "None"),
        ("WEP-40", wpa(pairwise="01"), 2, "WPA (PSK)", 1, "WEP-40"),
        ("WEP-104", wpa(pairwise="05"), 2, "WPA (PSK)", 8, "WEP-104"),
        ("WEP-40 and TKIP have no name", wpa(pairwise="01 02"), 2, "WPA (PSK)", 3, "None"),
        ("too short for suites", element(48, "0100 000fac04 0100"), 4, "WPA2 (PSK)", 0, "None"),
        ("one byte more", element(48, "0100 000fac04 0100 00") + "0fac04", 4, "WPA2 (PSK)", 4,
         "AES"),  # the suite lies beyond the element, not beyond the data
        ("WPA's header alone", element(221, "0050f201 01"), 2, "WPA (PSK)", 0, "None"),
        ("a vendor element of four bytes is none", element(221, "0050f201"), UNKNOWN, "", 0,
         "None"),
        ("a count that lies", element(48, "0100 000fac04 ff00 000fac04"), 4, "WPA2 (PSK)", 4,
         "AES"),
        ("the high byte of a count", element(48, "0100 000fac04 0103 000fac04 0107 000fac01 0000"),
         9, "WPA2 (802.1X)", 4, "AES"),
        ("128 key managements are none",
         element(48, "0100 000fac04 0100 000fac04 8000 000fac01 0000"), 4, "WPA2 (PSK)", 4, "AES"),
        ("other organization's suites",
         element(48, "0100 000fac04 0100 00409604 0100 00409601 0000"), 4, "WPA2 (PSK)", 0,
         "None"),
        ("runs past the end", "3014 0100 000fac04 0100 000fac04", UNKNOWN, "", 0, "None")),
    *[Case(f"service's {given} and {what}", elements,
           {"securityMode": code, "shortSecurityMode": shown}, given={"securityMode": given})
      for given, what, elements, code, shown in (
          (1, "nothing", "0000", 1, "WEP"), (1, "RSN", rsn(), 4, "WPA2 (PSK)"),
          (1, "both", rsn() + wpa("01"), 8, "WPA/WPA2 (802.1X)"), (0, "RSN", rsn(), 0, ""),
          (6, "RSN", rsn(), 6, "WEP (802.1X)"), (5, "RSN", rsn(), 5, ""))],

    # Fast transition.
    *simple(
        "fastBssTransition FAST_BSS_TRANSITION",
        ("RSN alone", rsn("04"), -1, ""),
        ("over the air", element(54, "aabb00") + rsn("04"), 0, "OTA"),
        ("over the DS", element(54, "aabbff") + rsn("04"), 1, "OTD"),
        ("adaptive", element(54, "aabb00") + rsn("02"), 2, "OTA (Adaptive)"),
        ("adaptive over the DS", element(54, "aabb01") + rsn("02"), 3, "OTD (Adaptive)"),
        ("802.1X", rsn("01 03") + element(54, "aabb01"), 1, "OTD"),
        ("without RSN", element(54, "aabb01"), 1, "OTD"),
        ("one of two lacks it", element(54, "aabb00") + rsn("04") + wpa(), 2, "OTA (Adaptive)"),
        ("the first of two lacks it", wpa() + rsn("04") + element(54, "aabb00"), 2,
         "OTA (Adaptive)"),
        ("RSN without suites lacks nothing", element(54, "aabb00") + element(48, "0100"), 0,
         "OTA"),
        ("of another length", element(54, "aabb") + rsn(), -1, "")),

    # Amendments.
    *simple(
        "amendments",
        ("none", "", []), ("d", COUNTRY, ["d"]), ("e by load", element(11, "010080 0000"), ["e"]),
        ("e by a short load", element(11, "010080"), ["e"]),
        ("e by WMM", element(221, "0050f202 0001 00"), ["e"]),
        ("no h on 2.4 GHz", "200103 2302 1100", []), ("i", element(48, "0100"), ["i"]),
        ("k", element(70, "0000000000"), ["k"]), ("p", element(69, "00"), ["p"]),
        ("r", element(54, "aabb00"), ["r"]), ("s by configuration", element(113, "00" * 7), ["s"]),
        ("s by identifier", element(114, ""), ["s"]),
        ("u", element(221, "506f9a10 00"), ["u"]),
        ("no u, too short", element(221, "506f9a10"), []),
        ("v", element(127, "000008"), ["v"]), ("no v", element(127, "0000f7"), []),
        ("no v, too short", element(127, "0000") + "0800", []),
        ("w", rsn(capabilities="8000"), ["i", "w"]),
        ("no w", rsn(capabilities="7fff"), ["i"]),
        ("no w by WPA", wpa() + "8000", []),
        ("in order", rsn(capabilities="8000") + element(54, "aabb00") + COUNTRY,
         ["d", "i", "r", "w"])),
    *simple("amendments", *[(f"h by {i}", element(i, "00" * 6), ["h"]) for i in (32, 35, 37, 40)],
            at=36),
    Case("no h by the channel of the scan before, 170", "0301aa", {"amendments": [], "channel": 36},
         at=36, then={"informationElementData": "030124" + element(32, "03")}),
    Case("h by the service's channel at first", "030106" + element(32, "03"),
         {"amendments": ["h"], "channel": 6}, at=36),

    # Load.
    *simple(
        "stationCount STATION_COUNT channelUtilization channelUtilizationMax",
        ("five bytes", element(11, "0001 80 0000"), 256, "256", 50, 50),
        ("four bytes", element(11, "0000 ff 00"), 0, "0", 100, 100),
        ("three bytes", element(11, "0700 80"), -1, "", -1, -1),
        ("six bytes", element(11, "0700 80 000000"), -1, "", -1, -1)),
    Case("the maximum stays", element(11, "0700 80 0000"),
         {"stationCount": 2, "channelUtilization": 20, "channelUtilizationMax": 50},
         then={"informationElementData": element(11, "0200 33 0000")}),
    Case("the maximum outlives the element", element(11, "0700 80 0000"),
         {"stationCount": -1, "channelUtilization": -1, "channelUtilizationMax": 50},
         then={"informationElementData": ""}),

    # Wi-Fi Protected Setup.
    *simple(
        "wpsEnabled wpsConfigured wpsLocked WPS",
        ("none", "0000", False, False, False, ""),
        ("header alone", wps("00"), True, False, False, "Not Configured"),
        ("configured", wps(CONFIGURED + VERSION), True, True, False, "Configured"),
        ("not configured", wps(VERSION + "1044 0001 01"), True, False, False, "Not Configured"),
        ("locked wins", wps(LOCKED + CONFIGURED), True, True, True, "Locked"),
        ("locked alone", wps(LOCKED + "1044 0001 01"), True, False, True, "Locked"),
        ("not locked", wps("1057 0001 00" + CONFIGURED), True, True, False, "Configured"),
        # Attributes are counted four bytes short: an empty one at the end is not looked at, and
        # does not find its value in the next element.
        ("the last one unread", wps(VERSION + "1057 0000") + "030106", True, False, False,
         "Not Configured"),
        ("too short for attributes", wps("1044 0001") + "02", True, False, False,
         "Not Configured"),
        ("one that runs past the end", wps("1044 ffff 02 00"), True, True, False, "Configured"),
        ("another type", element(221, "0050f205" + CONFIGURED), False, False, False, "")),

    # The name that an access point announces.
    *simple(
        "deviceName stationCount",
        ("Cisco", element(133, "00" * 10 + text("lobby-ap") + "00" * 8 + "0c000037"),
         "lobby-ap", 12),
        ("Cisco, 16 letters", element(133, "00" * 10 + text("lobby-and-stairs") + "05"),
         "lobby-and-stairs", 5),
        ("Cisco, too short", element(133, "00" * 10 + text("lobby") + "00" * 10) + "0701000000",
         None, 1),  # the byte lies beyond the element, not beyond the data
        ("Cisco, cut off", element(133, "00" * 5), None, -1),
        ("the load goes first", element(11, "0200 00 0000")
         + element(133, "00" * 26 + "0c000037"), None, 2),
        ("the load replaces", element(133, "00" * 26 + "0c000037")
         + element(11, "0200 00 0000"), None, 2),
        ("Aruba", element(221, "000b86 01 03 00" + text("west")) + "4100", "west", -1),
        ("Aruba, 128 bytes with the zero", element(221, "000b86 01 03 00" + text("w" * 200)),
         "w" * 127, -1),
        ("Aruba, another field", element(221, "000b86 01 04 00" + text("west")), None, -1),
        ("Zebra", element(221, "00a0f8 01 03" + "00" * 7 + text("dock")) + "4100", "dock", -1),
        ("Zebra, too short", element(221, "00a0f8 01 03" + "00" * 7), None, -1),
        ("Routerboard", element(221, "000c42 00 0112" + "00" * 10 + text("attic\0\0\0")),
         "attic", -1),
        ("Routerboard, second of two",
         element(221, "000c42 00 0204aabbccdd 010f" + "00" * 10 + text("attic")), "attic", -1),
        ("a later one", element(221, "000b86 01 03 00" + text("west"))
         + element(221, "00a0f8 01 03" + "00" * 7 + text("dock")), "dock", -1)),

    # Cisco extensions, country, and the rest.
    *simple(
        "ccxClientMFP ccxDTPC",
        ("none", "", "", -1),
        ("protection", element(221, "004096 14 01"), "Enabled", -1),
        ("no protection", element(221, "004096 14 fe"), "Disabled", -1),
        ("power", element(150, "004096 00 11 00"), "", 17),
        ("both", element(221, "004096 00 11") + element(150, "004096 14 01"), "Enabled", 17),
        ("too short", element(221, "004096 14") + "01", "", -1)),
    *simple("countryCode CC", ("country", COUNTRY, "DE", "DE"),
            ("lower case", element(7, text("us ") + "010b1e"), "US", "US"),
            ("none", "", None, "")),
    Case("infrastructure", "", {"NETWORK_TYPE": "Infrastructure", "beaconInterval": 102.4},
         given={"beaconInterval": 100}),
    Case("ad hoc", "", {"NETWORK_TYPE": "Ad-Hoc", "beaconInterval": 0}, given={"ibss": True}),
    Case("a scan without elements",
         ssid("Home") + "030106" + B_RATES + COUNTRY + rsn() + element(54, "aabb00")
         + wps(CONFIGURED + VERSION) + element(221, "000b86 01 03 00" + text("west"))
         + element(221, "004096 00 11"),
         {"ssid": HIDDEN, "channel": 11, "channelWidth": 0, "countryCode": None,
          "deviceName": None, "fastBssTransition": -1, "wpsEnabled": False, "streams": 1,
          "rates": [-1, -2, -5.5, -11], "amendments": ["d", "i", "r"], "cipherType": 4,
          "ccxDTPC": 17, "phyMode": 2, "securityMode": UNKNOWN}, at=11,
         then={"informationElementData": None}),
]

# Makers by the beginning of an address.
VENDORS = {
    "00:11:22": "Cisco Systems", "04:4F:AA": "Ruckus Wireless", "24:A4:3C": "Ubiquiti Inc",
    "00:18:0A": "Cisco Meraki", "00:18:4A": "Cisco Meraki", "88:15:44": "Cisco Meraki",
    "88:15:14": "Cisco Meraki", "00:88:15": "Meraki", "E0:55:6D": "Cisco Meraki",
    "70:73:CB": "Apple, Inc.", "74:73:CB": "Apple, Inc.",
}
# Address as the service gives it; device and access point.
ADDRESSES = [
    ("0:24:6c:1:2:13", "00:24:6C:01:02:13", "00:24:6C:01:02:1#"),
    ("a:b:c:d:e:f", "0A:0B:0C:0D:0E:0F", "0A:0B:0C:0D:0E:0#"),
    ("00:11:22:33:44:55", "Cisco:33:44:55", "Cisco:33:44:5#"),
    ("04:4f:aa:0a:1b:2c", "Ruckus:0A:1B:2C", "Ruckus:#A:1B:2#"),
    ("24:a4:3c:12:34:56", "Ubiquiti:12:34:56", "Ubiquiti:1#:34:56"),
    ("00:18:0a:12:34:56", "Meraki:12:34:56", "Meraki:12:34:56"),
    ("02:18:4a:12:34:56", "Meraki:12:34:56", "Meraki:12:34:5#"),
    ("88:15:44:12:34:56", "Meraki:12:34:56", "Meraki:12:34:56"),
    ("88:15:14:12:34:56", "Meraki:12:34:56", "Meraki:12:34:5#"),
    ("00:88:15:14:e2:55", "Meraki:14:E2:55", "Meraki:14:E2:5#"),
    ("e2:55:6d:12:34:56", "Meraki:12:34:56", "Meraki:12:34:5#"),
    ("70:73:cb:12:34:56", "Apple:12:34:56", "Apple:12:34:##"),
    ("72:73:cb:12:34:56", "Apple:12:34:56", "Apple:12:CB:##"),
    ("74:73:cb:12:34:56", "Apple:12:34:56", "Apple:12:34:##"),
]
CASES += [Case(f"address {address}", "", {"deviceid": device, "apid": access_point},
               given={"bssid": address})
          for address, device, access_point in ADDRESSES]


# The program --------------------------------------------------------------------------------------

def scan(time: float, networks: list[dict[str, Any]]) -> str:
    """A line of a recording; a key without a value is left out."""
    present = [{key: value for key, value in network.items() if value is not None}
               for network in networks]
    return json.dumps({"time": time, "networks": present}) + "\n"


def rounded(value: Any) -> Any:
    """Numbers come with the digits of their binary form."""
    if isinstance(value, list):
        return [rounded(one) for one in value]
    return round(value, 3) if isinstance(value, float) else value


class Attributes(unittest.TestCase):
    maxDiff = None

    def test_are_what_the_elements_say(self) -> None:
        first = [{"bssid": f"2:0:0:0:{number >> 8:x}:{number & 0xff:x}",
                  "channelNumber": case.at, "rssiValue": -60, "noiseMeasurement": -90,
                  "phyMode": 0, "securityMode": UNKNOWN,
                  "informationElementData": case.elements and case.elements.replace(" ", ""),
                  **case.given}
                 for number, case in enumerate(CASES)]
        second = [network | case.then for network, case in zip(first, CASES) if case.then]
        with tempfile.TemporaryDirectory() as folder:
            vendors = Path(folder) / "vendors.plist"
            vendors.write_bytes(plistlib.dumps(VENDORS))
            listed = subprocess.run(
                [os.environ["TESSARA_CLI"], "networks", "-", "--no-settings", "--format", "json",
                 "--vendors", vendors],
                input=scan(1700000000.5, first) + scan(1700000003.5, second),
                check=True, capture_output=True, text=True).stdout
        networks = json.loads(listed)["networks"]
        self.assertEqual(len(networks), len(CASES))
        for case, network in zip(CASES, networks):
            with self.subTest(case.what, elements=case.elements):
                values = network["columns"] | network["record"]
                found = {key: rounded(values[key]) for key in case.expected}
                self.assertEqual(found, case.expected)


if __name__ == "__main__":
    unittest.main()
