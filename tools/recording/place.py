"""The description of a place, read from TOML. docs/recordings.md tells how to write one."""

import tomllib
from collections.abc import Iterator
from dataclasses import dataclass, fields, replace
from datetime import datetime
from pathlib import Path
from typing import Any

from recording.beacon import FEATURES, NAME_ELEMENTS, SECURITY, Beacon
from recording.channels import WIDTHS

Point = tuple[float, float]
Span = tuple[float, float]


@dataclass(frozen=True)
class Wall:
    """A straight wall on the plan, on all floors."""

    start: Point
    end: Point
    loss: float  # dB


@dataclass(frozen=True)
class Step:
    """Where the listener is at a time; between two steps they walk straight."""

    at: float  # seconds
    position: Point
    floor: float


@dataclass(frozen=True)
class Change:
    """From this time on the beacon is another, on another channel as a rule."""

    at: float  # seconds
    beacon: Beacon


@dataclass(frozen=True)
class Network:
    """One BSS: what it sends, from where, and when."""

    access_point: str
    beacon: Beacon
    position: Point
    floor: float = 0
    power: float = 17  # dBm
    present: tuple[Span, ...] = ()  # seconds; none: always
    quiet: tuple[Span, ...] = ()  # seconds in which quiet intervals are announced
    changes: tuple[Change, ...] = ()
    announces_changes: bool = False

    def is_on(self, time: float) -> bool:
        return not self.present or any(start <= time < end for start, end in self.present)

    def beacon_at(self, time: float) -> Beacon:
        past = [change.beacon for change in self.changes if change.at <= time]
        return past[-1] if past else self.beacon

    def beacons(self) -> list[Beacon]:
        """All that it ever sends, apart from load and announcements."""
        return [self.beacon, *(change.beacon for change in self.changes)]


@dataclass(frozen=True)
class Place:
    starts: datetime
    seconds: float
    sweep_seconds: float
    seed: int
    floor_loss: float  # dB for each floor between
    path: tuple[Step, ...]
    walls: tuple[Wall, ...]
    noise: dict[int, int]  # dBm by channel; other channels have no reading
    networks: tuple[Network, ...]


def _point(pair: list[float]) -> Point:
    x, y = pair
    return x, y


def _tuples(value: Any) -> Any:
    return tuple(_tuples(item) for item in value) if isinstance(value, list) else value


_NESTED = ("radio", "network")
_BEACON_KEYS = {entry.name for entry in fields(Beacon)}
_NETWORK_KEYS = {entry.name for entry in fields(Network)} - {"beacon", "access_point"}
_ALLOWED = {
    "width": WIDTHS,
    "security": tuple(SECURITY),
    "name_element": tuple(NAME_ELEMENTS),
    "kind": ("ap", "ibss", "mesh"),
    "generation": ("b", "g", "a", "n", "ac"),
    "hidden": ("", "empty", "zeros"),
    "wps": ("", "configured", "not configured", "locked"),
}


def _check(table: dict[str, Any]) -> None:
    unknown = set(table) - _BEACON_KEYS - _NETWORK_KEYS - {"name"}
    unknown |= set(table.get("features", ())) - set(FEATURES)
    if unknown:
        raise ValueError(f"{table['name']}: unknown: {', '.join(sorted(unknown))}")
    for key, allowed in _ALLOWED.items():
        if key in table and table[key] not in allowed:
            raise ValueError(f"{table['name']}: {key} = {table[key]!r} is none of {allowed}")


def _leaves(table: dict[str, Any], outer: dict[str, Any]) -> Iterator[dict[str, Any]]:
    """The networks of an access point; what stands further out holds for all within."""
    own = outer | {key: _tuples(value) for key, value in table.items() if key not in _NESTED}
    inner = [child for key in _NESTED for child in table.get(key, [])]
    if not inner:
        yield own
    for child in inner:
        yield from _leaves(child, own)


def _network(table: dict[str, Any]) -> Network:
    _check(table)
    beacon = Beacon(
        announced_name=table["name"],
        **{key: value for key, value in table.items() if key in _BEACON_KEYS},
    )
    rest = {key: value for key, value in table.items() if key in _NETWORK_KEYS}
    rest["changes"] = tuple(
        Change(change["at"], replace(beacon, **{k: v for k, v in change.items() if k != "at"}))
        for change in rest.get("changes", ())
    )
    return Network(access_point=table["name"], beacon=beacon, **rest)


def read_place(file: Path) -> Place:
    """Raises ValueError, TypeError or KeyError for what is no description of a place."""
    table = tomllib.loads(file.read_text(encoding="utf-8"))
    common = table["place"]
    return Place(
        starts=common["starts"],
        seconds=common["seconds"],
        sweep_seconds=common["sweep_seconds"],
        seed=common["seed"],
        floor_loss=common["floor_loss"],
        path=tuple(Step(step["at"], _point(step["position"]), step["floor"])
                   for step in table["path"]),
        walls=tuple(Wall(_point(wall["from"]), _point(wall["to"]), wall["loss"])
                    for wall in table["wall"]),
        noise={int(channel): level for channel, level in table["noise"].items()},
        networks=tuple(
            _network(leaf)
            for access_point in table["access_point"]
            for leaf in _leaves(access_point, {"country": common["country"]})
        ),
    )
