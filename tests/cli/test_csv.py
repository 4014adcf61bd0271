"""The CSV of a list of networks, as Python's csv module reads it, beside the same list as JSON."""

import csv
import io
import json
import os
import plistlib
import subprocess
import tempfile
import unittest
from pathlib import Path
from typing import Any

RECORDING = Path(__file__).parents[2] / "recordings" / "old-town-office.jsonl.gz"


def names(*texts: str) -> str:
    """A recording of networks with these names."""
    networks = [{"bssid": f"2:0:0:0:0:{number:x}", "channelNumber": 6, "ssid": text,
                 "rssiValue": -60, "noiseMeasurement": -95} for number, text in enumerate(texts)]
    return json.dumps({"time": 1.7e9, "networks": networks}) + "\n"


class CSV(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def run_cli(self, *words: str | Path) -> bytes:
        environment = os.environ | {"XDG_DATA_HOME": str(self.folder),
                                    "XDG_CACHE_HOME": str(self.folder),
                                    "XDG_CONFIG_HOME": str(self.folder), "TZ": "UTC"}
        return subprocess.run([os.environ["TESSARA_CLI"], *words], env=environment, check=True,
                              stdout=subprocess.PIPE, timeout=60).stdout

    def rows(self, *words: str | Path) -> list[dict[str, str]]:
        text = self.run_cli("networks", *words, "--format", "csv").decode()
        self.assertTrue(text.endswith("\n"))
        self.assertNotIn("\r", text)
        return list(csv.DictReader(io.StringIO(text, newline=""), strict=True))

    def records(self, *words: str | Path) -> list[dict[str, Any]]:
        networks = json.loads(self.run_cli("networks", *words, "--format", "json"))["networks"]
        return [network["record"] for network in networks]

    def test_holds_what_the_records_hold(self) -> None:
        # One name holds quotation marks and a comma: its line is no CSV, as the format has it.
        options = (RECORDING, "--sort", "BSSID", "--default", "Units=1", "--filter", "!tassen")
        records = self.records(*options)
        rows = self.rows(*options)
        self.assertEqual(len(rows), len(records))
        self.assertGreater(len(rows), 50)
        for row, record in zip(rows, records):
            self.assertEqual(len(row), 39)
            self.assertNotIn(None, row, "a cell too many")
            self.assertNotIn(None, row.values(), "a cell too few")
            expected = {
                "BSSID": record["bssid"],
                "Network Name": record["ssid"],
                "Vendor": record["vendor"] or "",
                "Signal (dBm)": str(record["rssiLast"]),
                "Avg Noise (dBm)": str(record["noiseAvg"]),
                "Max SNR (dB)": str(record["snrMax"]),
                "Channel": str(record["channel"]),
                "Center Frequency (MHz)": str(record["centerFrequency"]),
                "Security": record["shortSecurityMode"] or "",
                "Seen": "",
            }
            self.assertEqual({title: row[title] for title in expected}, expected)
            basic = [-rate for rate in record["rates"] if rate < 0]
            self.assertEqual(row["Basic Rates (Mbps)"], ", ".join(f"{rate:g}" for rate in basic))

    def test_a_file_is_what_is_printed(self) -> None:
        self.run_cli("convert", RECORDING, self.folder / "out.csv")
        written = (self.folder / "out.csv").read_bytes()
        self.assertEqual(written, self.run_cli("networks", RECORDING, "--format", "csv"))

    def test_names_that_the_format_can_hold_come_back(self) -> None:
        texts = ["", "a,b", ",", "Büro, 2. Stock", "🦊", " blanks ", "it's", "a;b\tc", "=1+1"]
        recording = self.folder / "names.jsonl"
        recording.write_text(names(*texts))
        rows = self.rows(recording, "--sort", "BSSID", "--columns", "BSSID,SSID")
        self.assertEqual([row["Network Name"] for row in rows],
                         ["<Hidden Network>" if not text else text for text in texts])

    def test_notes_stand_beside_their_networks(self) -> None:
        recording = self.folder / "names.jsonl"
        recording.write_text(names("first", "second"))
        notes = {"02:00:00:00:00:01": "damp, dark", "02:00:00:00:00:77": "elsewhere"}
        file = self.folder / "notes.plist"
        file.write_bytes(plistlib.dumps(notes))
        rows = self.rows(recording, "--sort", "BSSID", "--annotations", file,
                         "--columns", "SSID,ANNOTATIONS,FIRST_SEEN")
        self.assertEqual(rows, [
            {"Network Name": "first", "Annotations": "", "First Seen": "2023/11/14 10:13:20 PM"},
            {"Network Name": "second", "Annotations": "damp, dark",
             "First Seen": "2023/11/14 10:13:20 PM"}])


if __name__ == "__main__":
    unittest.main()
