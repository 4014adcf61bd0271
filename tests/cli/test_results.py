"""Lists of real captures and recordings, in a circle through results files."""

import json
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

CLI = os.environ["TESSARA_CLI"]
RECORDINGS = Path(__file__).resolve().parents[2] / "recordings"

# What a file tells otherwise than a scan, and is meant to: a record from a file answers with its
# last sample, its age goes on, and the greatest load is that of its last beacon.
OF_THE_MOMENT = ["rssi", "noise", "lastSeenElapsedSeconds", "channelUtilizationMax"]
COLUMNS_OF_THE_MOMENT = ["SEEN"]
KEEP_ALL = ["--no-settings", "--default", "DeleteIfNotSeen=false"]


def inputs() -> list[Path]:
    folder = os.environ.get("TESSARA_CAPTURES")
    captures = sorted(Path(folder).glob("*.pcap")) if folder else []
    return captures + sorted(RECORDINGS.glob("*.jsonl.gz"))


def run(*arguments: str | Path) -> str:
    return subprocess.run(
        [CLI, *arguments], check=True, capture_output=True, text=True, encoding="utf-8"
    ).stdout


def listing(source: Path) -> dict:
    result = json.loads(run("networks", source, "--format", "json", *KEEP_ALL))
    # A file keeps no network without a channel.
    result["networks"] = [n for n in result["networks"] if n["record"]["channel"] != 0]
    for network in result["networks"]:
        for key in OF_THE_MOMENT:
            del network["record"][key]
        for key in COLUMNS_OF_THE_MOMENT:
            network["columns"].pop(key, None)
    return result


class Circle(unittest.TestCase):
    maxDiff = 4000

    def test_gives_equal_lists(self) -> None:
        self.assertTrue(inputs())
        for source in inputs():
            with self.subTest(source.name), tempfile.TemporaryDirectory() as folder:
                once = Path(folder) / "once.tessara"
                twice = Path(folder) / "twice.tessara"
                scans = Path(folder) / "scans.jsonl"
                run("convert", source, once, *KEEP_ALL)
                run("convert", once, twice)
                run("convert", twice, scans)
                expected = listing(source)
                self.assertEqual(listing(once), expected)
                self.assertEqual(listing(twice), expected)
                self.assertEqual(listing(scans), expected)


if __name__ == "__main__":
    unittest.main()
