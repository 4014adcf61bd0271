"""Someone walks through a place and listens: which networks each sweep finds, and how strong."""

import math
import random
from collections.abc import Iterator

from recording.beacon import Beacon, Load, Situation
from recording.channels import band, path_loss_at_one_metre
from recording.place import Network, Place, Point

_STRONGEST, _WEAKEST = -30, -95  # dBm
_PATH_LOSS_EXPONENT = 2.6
_FADING_DB, _FADING_SECONDS = 3.5, 15.0  # slow fading: spread, and how long it stays alike
_NEAREST = 2.0  # metres
_FLOOR_HEIGHT = 3.2  # metres
_BODY_LOSS = 3.0  # dB, of the listener and their antenna
_WALLS_AT_5_GHZ = 1.4  # how much more a wall takes there
_NOISE_DB = 1.4  # from sweep to sweep
_HALF_MISSED = -91.0  # dBm at which every second sweep misses a network
_NO_READING = 0.004  # share of networks found without a signal strength
_FIRST_SWEEP = 9  # networks that the driver still knows of when the walk begins
_ANNOUNCED_SECONDS = 8.0  # how long a switch of channels is announced
_UNKNOWN_SECURITY = 2**63 - 1


class _Radio:
    """What the networks of one access point on one band have in common, and how it drifts."""

    def __init__(self, seed: str) -> None:
        self._random = random.Random(seed)
        self.fading = self._random.gauss(0, _FADING_DB)  # dB
        self._stations = 0  # more or fewer than described, like the two below
        self._busy = 0
        self._next_load = self._random.uniform(5, 40)  # seconds

    def advance(self, time: float, since: float) -> None:
        """To a time, some seconds after the last one."""
        alike = math.exp(-since / _FADING_SECONDS)
        spread = _FADING_DB * math.sqrt(1 - alike * alike)
        self.fading = alike * self.fading + self._random.gauss(0, spread)
        while self._next_load <= time:
            self._stations = round(0.8 * self._stations + self._random.gauss(0, 1.5))
            self._busy = round(0.7 * self._busy + self._random.gauss(0, 6))
            self._next_load += self._random.uniform(15, 45)

    def load(self, described: tuple[int, int]) -> Load:
        stations, busy = described
        return Load(max(0, stations + self._stations), min(100, max(0, busy + self._busy)))


def _crosses(a: Point, b: Point, c: Point, d: Point) -> bool:
    """Whether the line from a to b crosses the one from c to d."""

    def side(p: Point, q: Point, r: Point) -> bool:
        return (r[1] - p[1]) * (q[0] - p[0]) > (q[1] - p[1]) * (r[0] - p[0])

    return side(a, c, d) != side(b, c, d) and side(a, b, c) != side(a, b, d)


def _listener(place: Place, time: float) -> tuple[Point, float]:
    """Position and floor at a time."""
    for start, end in zip(place.path, place.path[1:]):
        if time < end.at:
            share = max(0.0, (time - start.at) / (end.at - start.at))
            x, y = (p + share * (q - p) for p, q in zip(start.position, end.position))
            return (x, y), start.floor + share * (end.floor - start.floor)
    return place.path[-1].position, place.path[-1].floor


def _mean_signal(place: Place, network: Network, channel: int, time: float) -> float:
    """dBm before fading: free space, walls and floors."""
    here, floor = _listener(place, time)
    height = _FLOOR_HEIGHT * (network.floor - floor)
    x, y = network.position
    distance = max(_NEAREST, math.hypot(x - here[0], y - here[1], height))
    walls = sum(w.loss for w in place.walls if _crosses(here, network.position, w.start, w.end))
    if band(channel) == 5:
        walls *= _WALLS_AT_5_GHZ
    floors = place.floor_loss * abs(network.floor - floor)
    loss = path_loss_at_one_metre(channel) + 10 * _PATH_LOSS_EXPONENT * math.log10(distance)
    return network.power - _BODY_LOSS - loss - walls - floors


class Walk:
    """The scans of a walk, one after the other. The same place gives the same scans."""

    def __init__(self, place: Place) -> None:
        self._place = place
        self._random = random.Random(f"{place.seed} sweeps")
        # Each thing has random numbers of its own: what is added to a description later leaves
        # the rest as it was.
        self._radios = {
            key: _Radio(f"{place.seed} {key}")
            for network in place.networks
            for key in (_radio_of(network, beacon) for beacon in network.beacons())
        }
        self._hearing = [
            random.Random(f"{place.seed} {network.beacon.bssid}") for network in place.networks
        ]

    def scans(self) -> Iterator[dict[str, object]]:
        """The lines of the recording, as docs/recordings.md tells them."""
        time = since = 0.0
        while time < self._place.seconds:
            for radio in self._radios.values():
                radio.advance(time, since)
            found = self._sweep(time)
            if time == 0.0:  # nothing but what the driver still knows of
                found = found[:_FIRST_SWEEP]
            yield {"time": round(self._place.starts.timestamp() + time, 3), "networks": found}
            since = self._place.sweep_seconds + self._random.uniform(-0.12, 0.45)
            time += since

    def _sweep(self, time: float) -> list[dict[str, object]]:
        heard = zip(self._place.networks, self._hearing)
        results = (self._hear(network, random_, time) for network, random_ in heard)
        return [result for result in results if result]

    def _hear(
        self, network: Network, own: random.Random, time: float
    ) -> dict[str, object] | None:
        """The raw scan dictionary of a network, or none if this sweep does not find it."""
        beacon = network.beacon_at(time)
        radio = self._radios[_radio_of(network, beacon)]
        mean = _mean_signal(self._place, network, beacon.channel, time) + radio.fading
        signal = mean + own.gauss(0, _NOISE_DB)
        missed = own.random() < 1 / (1 + math.exp((signal - _HALF_MISSED) / 1.2)) + 0.01
        no_reading = own.random() < _NO_READING
        noise_drift = own.choice((-1, 0, 0, 1))
        if not network.is_on(time) or missed or signal < _WEAKEST:
            return None
        noise = self._place.noise.get(beacon.channel)
        result: dict[str, object] = {"bssid": beacon.bssid, "channelNumber": beacon.channel}
        name = beacon.visible_name()
        if name is not None:
            result["ssid"] = name
        result |= {
            "rssiValue": 0 if no_reading else min(_STRONGEST, round(signal)),
            "noiseMeasurement": noise + noise_drift if noise is not None else 0,
            "informationElementData": beacon.elements(_situation(network, radio, time)).hex(),
            "ibss": beacon.kind == "ibss",
            "beaconInterval": beacon.beacon_interval,
            "phyMode": 0,
            "securityMode": 1 if beacon.security == "wep" else _UNKNOWN_SECURITY,
        }
        return result


def _radio_of(network: Network, beacon: Beacon) -> tuple[str, int]:
    return network.access_point, band(beacon.channel)


def _situation(network: Network, radio: _Radio, time: float) -> Situation:
    """What the beacon says at this time beside what it always says."""
    beacon = network.beacon_at(time)
    load = radio.load(beacon.load)
    quiet = any(start <= time < end for start, end in network.quiet)
    for change in network.changes if network.announces_changes else ():
        if change.at - _ANNOUNCED_SECONDS <= time < change.at:
            beacons = math.ceil((change.at - time) / (beacon.beacon_interval * 1.024e-3))
            return Situation(load, change.beacon.channel, beacons, quiet)
    return Situation(load, quiet=quiet)
