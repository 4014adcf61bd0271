"""Builders of single information elements (IEEE Std 802.11-2020, 9.4.2).

Each takes the values of the element's fields and gives the whole element: identifier, length,
content. Numbers are little-endian, except in WPS. Widths are those of channels.Width.
"""

from collections.abc import Iterable, Sequence

from recording.channels import Width, centre_of_block, secondary_offset

# Basic rates have the top bit set; the unit is 500 kb/s.
_BASIC = 0x80


def element(identifier: int, *content: bytes) -> bytes:
    body = b"".join(content)
    if len(body) > 255:
        raise ValueError(f"element {identifier} would hold {len(body)} bytes")
    return bytes([identifier, len(body)]) + body


def vendor(oui: str, kind: int, *content: bytes, identifier: int = 221) -> bytes:
    """A vendor-specific element (9.4.2.25) with the type byte that follows the OUI by custom."""
    return element(identifier, bytes.fromhex(oui.replace(":", "")), bytes([kind]), *content)


def u16(value: int) -> bytes:
    return value.to_bytes(2, "little")


def u32(value: int) -> bytes:
    return value.to_bytes(4, "little")


def flags(bits: Iterable[int], size: int) -> bytes:
    """A bit field of `size` bytes with these bits set, bit 0 first."""
    return sum(1 << bit for bit in set(bits)).to_bytes(size, "little")


# --- what every beacon carries -------------------------------------------------------------------


def ssid(name: bytes) -> bytes:
    return element(0, name)


def _rate(mbps: float, basic: Sequence[float]) -> int:
    return int(mbps * 2) | (_BASIC if mbps in basic else 0)


def rates(mbps: Sequence[float], basic: Sequence[float]) -> tuple[bytes, bytes]:
    """Supported Rates and, from the ninth on, Extended Supported Rates (9.4.2.3, 9.4.2.13)."""
    coded = bytes(_rate(rate, basic) for rate in mbps)
    return element(1, coded[:8]), element(50, coded[8:]) if coded[8:] else b""


def ds_parameter_set(channel: int) -> bytes:
    return element(3, bytes([channel]))


def tim(dtim_period: int) -> bytes:
    """9.4.2.5, at the beacon with the DTIM and with nothing buffered."""
    return element(5, bytes([0, dtim_period, 0, 0]))


def ibss_parameter_set(atim_window: int = 0) -> bytes:
    return element(6, u16(atim_window))


def country(code: str, triplets: Iterable[tuple[int, int, int]], environment: str = " ") -> bytes:
    """9.4.2.8; a triplet is first channel, number of channels, highest power in dBm."""
    body = code.encode("ascii") + environment.encode("ascii")
    body += b"".join(bytes(triplet) for triplet in triplets)
    return element(7, body, b"\0" * (len(body) % 2))


def bss_load(stations: int, utilization: int, admission_capacity: int = 0) -> bytes:
    """9.4.2.27; the utilization counts to 255."""
    return element(11, u16(stations), bytes([utilization]), u16(admission_capacity))


def edca_parameter_set() -> bytes:
    """9.4.2.28, with the default values for an access point's stations."""
    return element(12, bytes([0, 0]), _edca_records())


def power_constraint(db: int) -> bytes:
    return element(32, bytes([db]))


def tpc_report(dbm: int) -> bytes:
    return element(35, bytes([dbm, 0]))


def channel_switch(new_channel: int, beacons: int) -> bytes:
    """9.4.2.18; no further frames are to be sent until the switch."""
    return element(37, bytes([1, new_channel, beacons]))


def quiet(count: int, period: int, duration: int) -> bytes:
    """9.4.2.22; the duration is in time units."""
    return element(40, bytes([count, period]), u16(duration), u16(0))


def erp(protection: bool) -> bytes:
    """9.4.2.11; protection is on while a station without OFDM is associated."""
    return element(42, flags([0, 1, 2] if protection else [], 1))


def ap_channel_report(operating_class: int, channels: Sequence[int]) -> bytes:
    return element(51, bytes([operating_class, *channels]))


# --- security ------------------------------------------------------------------------------------

_RSN_OUI = bytes([0x00, 0x0F, 0xAC])
_WPA_OUI = bytes([0x00, 0x50, 0xF2])


def _suites(oui: bytes, types: Sequence[int]) -> bytes:
    return u16(len(types)) + b"".join(oui + bytes([kind]) for kind in types)


def rsn(
    group: int,
    pairwise: Sequence[int],
    akms: Sequence[int],
    capabilities: int = 0,
    group_management: int | None = None,
) -> bytes:
    """9.4.2.24; suites by their types of OUI 00-0F-AC."""
    tail = u16(0) + _RSN_OUI + bytes([group_management]) if group_management else b""
    return element(
        48,
        u16(1),
        _RSN_OUI + bytes([group]),
        _suites(_RSN_OUI, pairwise),
        _suites(_RSN_OUI, akms),
        u16(capabilities),
        tail,
    )


def wpa(group: int, pairwise: Sequence[int], akms: Sequence[int]) -> bytes:
    """The vendor element that came before RSN; suites by their types of OUI 00-50-F2."""
    return vendor(
        "00:50:f2",
        1,
        u16(1),
        _WPA_OUI + bytes([group]),
        _suites(_WPA_OUI, pairwise),
        _suites(_WPA_OUI, akms),
    )


def mobility_domain(identifier: int, over_ds: bool) -> bytes:
    return element(54, u16(identifier), flags([0] if over_ds else [], 1))


def owe_transition(bssid: bytes, name: bytes) -> bytes:
    """Names the protected half of a network that is also open (Wi-Fi Alliance, OWE)."""
    return vendor("50:6f:9a", 28, bssid, bytes([len(name)]), name)


# --- HT and VHT ----------------------------------------------------------------------------------


def ht_capabilities(streams: int, forty: bool, short_gi: bool) -> bytes:
    """9.4.2.55."""
    info = {0, 2, 3, 7, 8}  # LDPC, no SM power save, STBC
    if forty:
        info |= {1, 12}
    if short_gi:
        info |= {5, 6} if forty else {5}
    ampdu = 0x03 | 5 << 2  # 64 KB, 4 us apart
    mcs = (b"\xff" * streams).ljust(10, b"\0") + u16(0) + b"\x01" + bytes(3)
    return element(45, flags(info, 2), bytes([ampdu]), mcs, u16(0), u32(0), bytes(1))


def ht_operation(channel: int, width: Width, protection: int) -> bytes:
    """9.4.2.56, with no basic MCS."""
    offset = secondary_offset(channel, width)
    any_width = 0x04 if offset else 0
    subsets = bytes([offset | any_width]) + u16(protection) + u16(0)
    return element(61, bytes([channel]), subsets, bytes(16))


def _vht_mcs_map(streams: int, top: int) -> bytes:
    """Two bits a stream: 0, 1, 2 for MCS up to 7, 8, 9, and 3 for none (9.4.2.157.3)."""
    return u16(sum((top if stream < streams else 3) << 2 * stream for stream in range(8)))


_VHT_TOP_RATE = {"20": 78, "40+": 180, "40-": 180, "80": 390, "160": 780, "80+80": 780}


def vht_capabilities(streams: int, width: Width, beamforming: bool) -> bytes:
    """9.4.2.157."""
    info = {1, 4, 5, 7, 8, 23, 24, 25}  # 11454 bytes, LDPC, short GI, STBC, 1 MB of A-MPDU
    if width in ("160", "80+80"):
        info |= {2 if width == "160" else 3, 6}
    if beamforming:
        info |= {11, 12, 13, 14} | ({16, 19} if streams > 1 else set())
    map_and_rate = _vht_mcs_map(streams, 2) + u16(_VHT_TOP_RATE[width] * streams)
    return element(191, flags(info, 4), map_and_rate * 2)


def vht_operation(channel: int, width: Width, second_centre: int = 0) -> bytes:
    """9.4.2.158; 160 MHz in the form with a width code of its own."""
    code = {"80": 1, "160": 2, "80+80": 3}.get(width, 0)
    centre = centre_of_block(channel, width) if code else 0
    return element(192, bytes([code, centre, second_centre]), _vht_mcs_map(1, 0))


def transmit_power_envelope(width: Width, dbm: int) -> bytes:
    """9.4.2.161; one limit in half dBm for 20, 40, 80 and 160 MHz as far as the width goes."""
    limits = {"20": 1, "40+": 2, "40-": 2, "80": 3}.get(width, 4)
    return element(195, bytes([limits - 1]), bytes([dbm * 2] * limits))


# --- management ----------------------------------------------------------------------------------


def rm_enabled_capabilities() -> bytes:
    """9.4.2.44: neighbour report, the three beacon measurements, channel load, channel report."""
    return element(70, flags([1, 4, 5, 6, 9, 16], 5))


def multiple_bssid(exponent: int) -> bytes:
    return element(71, bytes([exponent]))


def extended_capabilities(bits: Iterable[int]) -> bytes:
    """9.4.2.26, as long as the highest bit needs."""
    wanted = set(bits)
    return element(127, flags(wanted, max(wanted) // 8 + 1))


def time_advertisement(year: int, month: int, day: int) -> bytes:
    """9.4.2.60: the UTC time at which the TSF timer was 0, midnight of a day, error unknown."""
    return element(69, b"\x02", u16(year), bytes([month, day]), bytes(6), bytes(5), bytes(1))


def interworking(network_type: int, internet: bool, venue: tuple[int, int]) -> bytes:
    """9.4.2.91, with venue group and type and without HESSID."""
    return element(107, bytes([network_type | (0x10 if internet else 0), *venue]))


def advertisement_protocol() -> bytes:
    """9.4.2.92: ANQP, with no limit on the length of an answer."""
    return element(108, bytes([0x7F, 0x00]))


def roaming_consortium(*identifiers: bytes) -> bytes:
    """9.4.2.95; at most three, of which the first two have their lengths told."""
    lengths = [len(oi) for oi in identifiers[:2]] + [0, 0]
    return element(111, bytes([0, lengths[0] | lengths[1] << 4]), *identifiers)


def mesh_configuration(peerings: int, secured: bool) -> bytes:
    """9.4.2.97: HWMP, airtime metric, neighbour offset synchronization; forwards, open to more."""
    formation = 0x01 | peerings << 1
    return element(113, bytes([1, 1, 0, 1, 1 if secured else 0, formation, 0x09]))


def mesh_id(name: bytes) -> bytes:
    return element(114, name)


# --- vendors -------------------------------------------------------------------------------------

# Best effort, background, video, voice: ACI and AIFSN, ECWmin and ECWmax, TXOP limit in 32 us.
_EDCA = ((0, 3, 4, 10, 0), (1, 7, 4, 10, 0), (2, 2, 3, 4, 94), (3, 2, 2, 3, 47))


def _edca_records() -> bytes:
    return b"".join(
        bytes([aci << 5 | aifsn, high << 4 | low]) + u16(limit)
        for aci, aifsn, low, high, limit in _EDCA
    )


def wmm_parameters() -> bytes:
    return vendor("00:50:f2", 2, bytes([1, 1, 0x80, 0]), _edca_records())


def _wps(kind: int, value: bytes) -> bytes:
    return kind.to_bytes(2, "big") + len(value).to_bytes(2, "big") + value


def wps(configured: bool, locked: bool, maker: str, model: str, name: str, uuid: bytes) -> bytes:
    """Wi-Fi Simple Configuration as in a probe response of an access point."""
    return vendor(
        "00:50:f2",
        4,
        _wps(0x104A, b"\x10"),
        _wps(0x1044, b"\x02" if configured else b"\x01"),
        _wps(0x1057, b"\x01") if locked else b"",
        _wps(0x103B, b"\x03"),
        _wps(0x1047, uuid),
        _wps(0x1021, maker.encode()),
        _wps(0x1023, model.encode()),
        _wps(0x1024, b"1"),
        _wps(0x1042, b"1"),
        _wps(0x1054, bytes([0, 6]) + _WPA_OUI + b"\x04" + bytes([0, 1])),
        _wps(0x1011, name.encode()),
        _wps(0x1008, (0x2008 | 0x0280).to_bytes(2, "big")),
        _wps(0x103C, b"\x03"),
        _wps(0x1049, bytes([0x00, 0x37, 0x2A, 0, 1, 0x20])),
    )


def p2p(device: bytes) -> bytes:
    """Wi-Fi Direct: a group owner with its capability and its device address."""
    capability = b"\x02" + u16(2) + bytes([0x25, 0x01])
    return vendor("50:6f:9a", 9, capability, b"\x03" + u16(6) + device)


def hotspot_indication() -> bytes:
    """Hotspot 2.0, release 2, no group-addressed frames forwarded."""
    return vendor("50:6f:9a", 16, bytes([0x11]))


def cisco_name_and_load(name: str, stations: int) -> bytes:
    """Element 133: ten bytes, a name of sixteen, the number of stations, three bytes."""
    return element(133, bytes(10), name.encode("ascii")[:16].ljust(16, b"\0"),
                   bytes([min(stations, 255)]), bytes(3))


def cisco_transmit_power(dbm: int) -> bytes:
    return vendor("00:40:96", 0, bytes([dbm, 0]), identifier=150)


def cisco_version(version: int) -> bytes:
    return vendor("00:40:96", 3, bytes([version]))


def cisco_client_protection(enabled: bool) -> bytes:
    return vendor("00:40:96", 20, bytes([1 if enabled else 0]))


def aruba_name(name: str) -> bytes:
    return vendor("00:0b:86", 1, bytes([3, 0]), name.encode("ascii"))


def zebra_name(name: str) -> bytes:
    return vendor("00:a0:f8", 1, bytes([3]), bytes(7), name.encode("ascii"))


def routerboard_name(name: str) -> bytes:
    body = bytes(10) + name.encode("ascii").ljust(20, b"\0")
    return vendor("00:0c:42", 0, bytes(2), bytes([1, len(body)]), body)


def atheros_capability() -> bytes:
    return vendor("00:03:7f", 1, bytes([1, 0, 0]) + u16(0x7FFF))


def broadcom(stations: int) -> bytes:
    return vendor("00:10:18", 2, bytes([min(stations, 255), 0, 0]) + u16(0))


def apple(kind: int) -> bytes:
    return vendor("00:17:f2", kind, bytes([0, 1, 4]))
