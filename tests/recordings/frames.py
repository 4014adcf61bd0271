"""Turns scans of a recording into a capture of beacons that other tools read."""

import struct
from collections.abc import Iterable
from typing import Any

_RADIOTAP = 127
_RSN, _VENDOR = 48, 221


def _privacy(network: dict[str, Any], elements: bytes) -> bool:
    """The Privacy bit: WEP, or an RSN or WPA element."""
    position, seen = 0, bool(network["securityMode"] == 1)
    while position < len(elements):
        identifier, length = elements[position], elements[position + 1]
        content = elements[position + 2:position + 2 + length]
        seen |= identifier == _RSN
        seen |= identifier == _VENDOR and content.startswith(b"\x00\x50\xf2\x01")
        position += 2 + length
    return seen


def beacon(network: dict[str, Any]) -> bytes:
    """A beacon frame with a radiotap header without fields."""
    address = bytes.fromhex(network["bssid"].replace(":", ""))
    elements = bytes.fromhex(network["informationElementData"])
    kind = 0x0002 if network["ibss"] else 0x0001
    capabilities = kind | (0x0010 if _privacy(network, elements) else 0)
    header = b"\x80\0\0\0" + b"\xff" * 6 + address + address + b"\0\0"
    fixed = struct.pack("<QHH", 0, network["beaconInterval"], capabilities)
    return struct.pack("<BBHI", 0, 0, 8, 0) + header + fixed + elements


def capture(networks: Iterable[dict[str, Any]]) -> bytes:
    """A pcap file with one beacon for each."""
    parts = [struct.pack("<IHHiIII", 0xA1B2C3D4, 2, 4, 0, 0, 65535, _RADIOTAP)]
    for network in networks:
        frame = beacon(network)
        parts.append(struct.pack("<IIII", 0, 0, len(frame), len(frame)) + frame)
    return b"".join(parts)
