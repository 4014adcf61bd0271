"""Channels, how wide ones are laid out around the primary channel, and what a country allows."""

import math
from typing import Literal, get_args

# A sign tells on which side of the primary channel the secondary one lies.
Width = Literal["20", "40+", "40-", "80", "160", "80+80"]
WIDTHS: tuple[str, ...] = get_args(Width)

# First channels of the 80 MHz blocks (IEEE Std 802.11-2020, table E-4).
_BLOCKS_80 = (36, 52, 100, 116, 132, 149)
_BLOCKS_160 = (36, 100)


def band(channel: int) -> int:
    """The band in GHz, 2 or 5."""
    return 5 if channel >= 36 else 2


def centre_mhz(channel: int) -> int:
    if channel == 14:
        return 2484
    return (5000 if band(channel) == 5 else 2407) + 5 * channel


def secondary_offset(channel: int, width: Width) -> int:
    """The secondary channel as elements code it: 0 none, 1 above, 3 below (9.4.2.56)."""
    if width in ("20", "40+", "40-"):
        return {"20": 0, "40+": 1, "40-": 3}[width]
    return 1 if (channel - _block(channel, "80")) // 4 % 2 == 0 else 3


def _block(channel: int, width: Width) -> int:
    blocks = _BLOCKS_160 if width == "160" else _BLOCKS_80
    return max(first for first in blocks if first <= channel)


def centre_of_block(channel: int, width: Width) -> int:
    """The channel number at the centre of the (first) segment of 80 MHz or of 160 MHz."""
    return _block(channel, width) + (14 if width == "160" else 6)


def is_dfs(channel: int) -> bool:
    """Whether radar has to be avoided there (52 to 144)."""
    return 52 <= channel <= 144


# First channel, number of channels, highest power in dBm.
_COUNTRIES: dict[str, dict[int, tuple[tuple[int, int, int], ...]]] = {
    "DE": {2: ((1, 13, 20),), 5: ((36, 4, 23), (52, 4, 23), (100, 11, 30))},
    "US": {2: ((1, 11, 30),), 5: ((36, 4, 23), (52, 4, 24), (100, 12, 24), (149, 5, 30))},
    "JP": {2: ((1, 14, 20),), 5: ((36, 4, 20), (52, 4, 20), (100, 11, 30))},
}


def country_triplets(code: str, channel: int) -> tuple[tuple[int, int, int], ...]:
    return _COUNTRIES[code][band(channel)]


def power_limit(code: str, channel: int) -> int:
    """The highest power in dBm that the country allows on the channel."""
    return max(
        power
        for first, count, power in country_triplets(code, channel)
        if first <= channel <= first + (count - 1) * (4 if first > 14 else 1)
    )


def path_loss_at_one_metre(channel: int) -> float:
    """Free space, in dB."""
    return 20 * math.log10(centre_mhz(channel)) - 27.55
