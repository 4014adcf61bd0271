"""The elements that a network sends, from its description."""

from collections.abc import Callable
from dataclasses import dataclass

from recording import elements as ie
from recording.channels import Width, band, country_triplets, is_dfs, power_limit


@dataclass(frozen=True)
class Load:
    stations: int
    busy: int  # per cent


@dataclass(frozen=True)
class Situation:
    """What differs between two beacons of a network."""

    load: Load = Load(0, 0)
    switch_to: int = 0  # the channel announced, 0 for none
    switch_in: int = 0  # beacons
    quiet: bool = False


# Types of suites of OUI 00-0F-AC (IEEE Std 802.11-2020, tables 9-149 and 9-151).
_WEP40, _TKIP, _CCMP, _BIP = 1, 2, 4, 6
_DOT1X, _PSK, _FT_DOT1X, _FT_PSK, _PSK_SHA256, _SAE, _OWE = 1, 2, 3, 4, 6, 8, 18
# RSN capabilities: 16 replay counters; management frame protection capable, required.
_COUNTERS, _CAPABLE, _REQUIRED = 0x000C, 0x0080, 0x0040
_PROTECTED = _COUNTERS | _CAPABLE | _REQUIRED


def _rsn(*akms: int, pairwise: tuple[int, ...] = (_CCMP,), group: int = _CCMP,
         capabilities: int = _COUNTERS) -> bytes:
    required = capabilities & _REQUIRED
    return ie.rsn(group, pairwise, akms, capabilities, _BIP if required else None)


def _wpa(akm: int, *pairwise: int) -> bytes:
    return ie.wpa(_TKIP, pairwise, (akm,))


# The RSN element and the WPA element by kind of security.
SECURITY: dict[str, tuple[bytes, bytes]] = {
    "open": (b"", b""),
    "wep": (b"", b""),
    "wpa-psk": (b"", _wpa(_PSK, _TKIP)),
    "wpa-enterprise": (b"", _wpa(_DOT1X, _TKIP)),
    "wpa-wpa2-psk": (
        _rsn(_PSK, pairwise=(_CCMP, _TKIP), group=_TKIP), _wpa(_PSK, _TKIP, _CCMP)),
    "wpa-wpa2-enterprise": (
        _rsn(_DOT1X, pairwise=(_CCMP, _TKIP), group=_TKIP), _wpa(_DOT1X, _TKIP)),
    "wpa2-psk": (_rsn(_PSK), b""),
    "wpa2-psk-pmf": (_rsn(_PSK, _PSK_SHA256, capabilities=_COUNTERS | _CAPABLE), b""),
    "wpa2-psk-ft": (_rsn(_PSK, _FT_PSK), b""),
    "wpa2-enterprise": (_rsn(_DOT1X), b""),
    "wpa2-enterprise-ft": (_rsn(_DOT1X, _FT_DOT1X, capabilities=_COUNTERS | _CAPABLE), b""),
    "wpa3-sae": (_rsn(_SAE, capabilities=_PROTECTED), b""),
    "wpa3-transition": (_rsn(_PSK, _SAE, capabilities=_COUNTERS | _CAPABLE), b""),
    "owe": (_rsn(_OWE, capabilities=_PROTECTED), b""),
}

# How an access point tells its own name.
NAME_ELEMENTS: dict[str, Callable[[str, Load], bytes]] = {
    "cisco": lambda name, load: ie.cisco_name_and_load(name, load.stations),
    "aruba": lambda name, load: ie.aruba_name(name),
    "zebra": lambda name, load: ie.zebra_name(name),
    "routerboard": lambda name, load: ie.routerboard_name(name),
}

# What a network may have beside what its generation and its band bring along.
FEATURES = (
    "ap-channel-report", "apple", "atheros", "broadcom", "bss-load", "bss-transition",
    "cisco-extensions", "edca", "hotspot", "mobility-domain", "multiple-bssid", "no-dsss",
    "no-wmm", "owe-transition", "p2p", "power-control", "rm", "time-advertisement",
)


@dataclass(frozen=True)
class Beacon:
    """What a network announces; the keys of a description have the same names."""

    announced_name: str
    bssid: str
    channel: int
    ssid: str = ""
    charset: str = "utf-8"  # of the SSID on the air
    hidden: str = ""  # "empty": an SSID of no bytes; "zeros": of as many zero bytes
    kind: str = "ap"
    generation: str = "n"
    width: Width = "20"
    second_centre: int = 0  # channel number at the centre of the second segment of 80+80 MHz
    streams: int = 1
    security: str = "open"
    country: str = ""  # none: no Country element
    protection: int = 0  # of HT frames, 0 to 3; 3 if stations without HT are associated
    load: tuple[int, int] = (0, 0)  # stations and per cent of air time around which it moves
    wps: str = ""
    name_element: str = ""
    partner: str = ""  # BSSID of the other half of an OWE transition pair
    features: tuple[str, ...] = ()
    beacon_interval: int = 100  # time units

    def ssid_bytes(self) -> bytes:
        """The SSID as it is on the air."""
        name = self.ssid.encode(self.charset)
        if self.hidden:
            return bytes(len(name)) if self.hidden == "zeros" else b""
        return b"" if self.kind == "mesh" else name

    def visible_name(self) -> str | None:
        """The name as a Wi-Fi service gives it: none if there is none, or if it is no UTF-8."""
        if not any(self.ssid_bytes()):
            return None
        try:
            return self.ssid_bytes().decode("utf-8")
        except UnicodeDecodeError:
            return None

    def elements(self, now: Situation) -> bytes:
        """The element bytes, in the order of table 9-32 as far as the standard tells it."""
        rsn, wpa = SECURITY[self.security]
        rates, more_rates = self._rates()
        parts = [
            ie.ssid(self.ssid_bytes()),
            rates,
            ie.ds_parameter_set(self.channel) if band(self.channel) == 2 else b"",
            ie.ibss_parameter_set() if self.kind == "ibss" else ie.tim(1 if self.is_11b() else 2),
            self._country_and_power(),
            self._announcements(now),
            self._erp(),
            more_rates,
            rsn,
            self._load(now.load),
            self._radio_management(),
            self._high_throughput(),
            self._management(),
            self._mesh(),
            self._very_high_throughput(),
            self._vendors(now.load, wpa),
        ]
        return b"".join(parts)

    def has(self, feature: str) -> bool:
        return feature in self.features

    def is_11b(self) -> bool:
        return self.generation == "b"

    def is_ht(self) -> bool:
        return self.generation in ("n", "ac")

    def is_vht(self) -> bool:
        return self.generation == "ac"

    def _octets(self) -> bytes:
        return bytes.fromhex(self.bssid.replace(":", ""))

    def _rates(self) -> tuple[bytes, bytes]:
        dsss, ofdm = [1.0, 2.0, 5.5, 11.0], [6.0, 9.0, 12.0, 18.0, 24.0, 36.0, 48.0, 54.0]
        if self.is_11b():
            return ie.rates(dsss, dsss[:2])
        if band(self.channel) == 5 or self.has("no-dsss"):
            return ie.rates(ofdm, [6.0, 12.0, 24.0])
        return ie.rates(dsss + ofdm, dsss)

    def _country_and_power(self) -> bytes:
        if not self.country:
            return b""
        parts = ie.country(self.country, country_triplets(self.country, self.channel))
        if self.has("power-control"):
            parts += ie.power_constraint(3 if is_dfs(self.channel) else 0)
            parts += ie.tpc_report(power_limit(self.country, self.channel) - 3)
        return parts

    def _announcements(self, now: Situation) -> bytes:
        switch = ie.channel_switch(now.switch_to, now.switch_in) if now.switch_to else b""
        return switch + (ie.quiet(1, 10, 20) if now.quiet else b"")

    def _erp(self) -> bytes:
        if band(self.channel) == 5 or self.is_11b():
            return b""
        return ie.erp(self.protection == 3)

    def _load(self, load: Load) -> bytes:
        announced = ie.bss_load(load.stations, round(load.busy * 2.55))
        return (announced if self.has("bss-load") else b"") + (
            ie.edca_parameter_set() if self.has("edca") else b"")

    def _radio_management(self) -> bytes:
        parts = b""
        if self.has("ap-channel-report"):
            parts += ie.ap_channel_report(81, (1, 6, 11)) + ie.ap_channel_report(115, (36, 44))
        if self.security.endswith("-ft") or self.has("mobility-domain"):
            # Some announce a mobility domain and leave its key management to their stations.
            parts += ie.mobility_domain(0x4C54, over_ds=band(self.channel) == 5)
        if self.has("time-advertisement"):
            parts += ie.time_advertisement(2024, 5, 14)
        if self.has("rm"):
            parts += ie.rm_enabled_capabilities()
        if self.has("multiple-bssid"):
            parts += ie.multiple_bssid(3)
        return parts

    def _high_throughput(self) -> bytes:
        if not self.is_ht():
            return b""
        forty = self.width != "20"
        capabilities = ie.ht_capabilities(self.streams, forty, short_gi=self.streams > 1)
        return capabilities + ie.ht_operation(self.channel, self.width, self.protection)

    def _management(self) -> bytes:
        bits = {2} if self.is_ht() else set()  # extended channel switching
        if self.is_ht() and band(self.channel) == 2:
            bits |= {0}  # 20/40 coexistence
        if self.has("bss-transition"):
            bits |= {19}
        if self.has("hotspot"):
            bits |= {31}  # interworking
        if self.charset == "utf-8" and not self.ssid.isascii():
            bits |= {48}
        if self.is_vht():
            bits |= {62}  # operating mode notification
        parts = ie.extended_capabilities(bits) if bits else b""
        if self.has("hotspot"):
            # Free public network with Internet access, in an assembly building: a library.
            parts += ie.interworking(3, True, (1, 8)) + ie.advertisement_protocol()
            parts += ie.roaming_consortium(bytes.fromhex("0a5c01"), bytes.fromhex("0a5c020304"))
        return parts

    def _mesh(self) -> bytes:
        if self.kind != "mesh":
            return b""
        return ie.mesh_id(self.ssid.encode()) + ie.mesh_configuration(2, self.security != "open")

    def _very_high_throughput(self) -> bytes:
        if not self.is_vht():
            return b""
        limit = power_limit(self.country, self.channel) if self.country else 20
        return (
            ie.vht_capabilities(self.streams, self.width, beamforming=self.streams > 1)
            + ie.vht_operation(self.channel, self.width, self.second_centre)
            + ie.transmit_power_envelope(self.width, limit)
        )

    def _vendors(self, load: Load, wpa: bytes) -> bytes:
        parts = wpa
        if self.is_ht() and not self.has("no-wmm"):
            parts += ie.wmm_parameters()
        if self.wps:
            parts += ie.wps(
                configured=self.wps != "not configured",
                locked=self.wps == "locked",
                maker="Hearth and Wire",
                model="Home gateway",
                name=self.announced_name,
                uuid=self._octets().rjust(16, b"\x5a"),
            )
        if self.has("owe-transition"):
            partner = bytes.fromhex(self.partner.replace(":", ""))
            parts += ie.owe_transition(partner, self.ssid.encode())
        if self.has("hotspot"):
            parts += ie.hotspot_indication()
        if self.has("p2p"):
            parts += ie.p2p(self._octets())
        if self.has("atheros"):
            parts += ie.atheros_capability()
        if self.has("broadcom"):
            parts += ie.broadcom(load.stations)
        if self.has("apple"):
            parts += ie.apple(6)
        if self.has("cisco-extensions"):
            parts += ie.cisco_version(5) + ie.cisco_client_protection(True)
            parts += ie.cisco_transmit_power(14)
        if self.name_element:
            parts += NAME_ELEMENTS[self.name_element](self.announced_name, load)
        return parts
