"""Results files in all their forms, made with Python's own writer of binary property lists, and
what the program's look like to Python's reader."""

import json
import os
import plistlib
import subprocess
import tempfile
import unittest
from datetime import datetime
from pathlib import Path
from plistlib import UID
from typing import Any

CLI = os.environ["TESSARA_CLI"]
REFERENCE_DATE = 978307200
SCAN_TIME = 1_700_000_000.5
ELEMENTS = bytes.fromhex("0004486f6d65 030106")


class Archive:
    """A keyed archive in the making."""

    def __init__(self) -> None:
        self.objects: list[Any] = ["$null"]

    def add(self, value: Any) -> UID:
        self.objects.append(value)
        return UID(len(self.objects) - 1)

    def object(self, classes: str, **members: Any) -> UID:
        names = classes.split()
        record = self.add({"$classname": names[0], "$classes": names})
        return self.add({**members, "$class": record})

    def array(self, elements: list[Any], classes: str = "NSArray NSObject") -> UID:
        return self.object(classes, **{"NS.objects": elements})

    def dictionary(
        self, entries: dict[str, Any], classes: str = "NSDictionary NSObject"
    ) -> UID:
        keys = [self.add(key) for key in entries]
        return self.object(classes, **{"NS.keys": keys, "NS.objects": list(entries.values())})

    def date(self, seconds: float) -> UID:
        return self.object("NSDate NSObject", **{"NS.time": seconds - REFERENCE_DATE})

    def rgb(self, text: bytes) -> UID:
        return self.object("NSColor NSObject", NSColorSpace=1, NSRGB=text)

    def scan(self, **changes: Any) -> UID:
        entries = {
            "bssid": "a:0:0:0:0:1", "channelNumber": 6, "ssid": "Home", "rssiValue": -60,
            "noiseMeasurement": -92, "informationElementData": ELEMENTS, "ibss": False,
            "beaconInterval": 100, "phyMode": 0, "securityMode": 2**63 - 1,
        } | changes
        return self.dictionary({k: self.add(v) for k, v in entries.items() if v is not None})

    def sample(self, classes: str = "TSDataPoint NSObject", **changes: Any) -> UID:
        members = {
            "revision": 1, "rssiValue": -60, "noiseValue": -92, "channel": 0, "stationCount": 3,
            "chUtilization": 20, "timestamp": self.date(SCAN_TIME),
        } | changes
        return self.object(classes, **{k: v for k, v in members.items() if v is not None})

    def network(self, classes: str = "TSNetwork NSObject", **changes: Any) -> UID:
        members = {
            "network": self.scan(), "dataPoints": self.array([self.sample()]),
            "color": self.rgb(b"1 0.5 0\0"), "lastSeen": self.date(SCAN_TIME),
        } | changes
        return self.object(classes, **{k: v for k, v in members.items() if v is not None})

    def results(self, *networks: UID) -> bytes:
        return self.bytes(
            self.dictionary(
                {"networks": self.array(list(networks)), "lastScanTime": self.date(SCAN_TIME)}
            )
        )

    def bytes(self, root: Any, **changes: Any) -> bytes:
        archive = {
            "$archiver": "NSKeyedArchiver", "$version": 100000, "$objects": self.objects,
            "$top": {"root": root},
        } | changes
        return plistlib.dumps(archive, fmt=plistlib.FMT_BINARY, sort_keys=False)


def decoded(archive: dict[str, Any], value: Any) -> Any:
    """An object of an archive as plain values."""
    if not isinstance(value, UID):
        return value
    value = archive["$objects"][value.data]
    if not isinstance(value, dict):
        return None if value == "$null" else value
    members = {k: v for k, v in value.items() if k != "$class"}
    if "NS.keys" in members:
        keys, values = ([decoded(archive, v) for v in members[k]] for k in ("NS.keys", "NS.objects"))
        return dict(zip(keys, values))
    if "NS.objects" in members:
        return [decoded(archive, v) for v in members["NS.objects"]]
    if "NS.time" in members:
        return members["NS.time"] + REFERENCE_DATE
    return {"class": archive["$objects"][value["$class"].data]["$classname"]} | {
        key: decoded(archive, v) for key, v in members.items()
    }


class ArchiveTest(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.file = Path(folder.name) / "in.tessara"

    def run_cli(self, content: bytes, *arguments: str | Path) -> subprocess.CompletedProcess[str]:
        self.file.write_bytes(content)
        return subprocess.run(
            [CLI, *arguments, "--no-settings"], capture_output=True, text=True, encoding="utf-8",
            timeout=60,
        )

    def records(self, content: bytes) -> list[dict[str, Any]]:
        result = self.run_cli(content, "networks", self.file, "--format", "json")
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return [network["record"] for network in json.loads(result.stdout)["networks"]]

    def written(self, content: bytes) -> dict[str, Any]:
        """What the program writes after it has read this."""
        output = self.file.with_name("out.tessara")
        result = self.run_cli(content, "convert", self.file, output)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        archive = plistlib.loads(output.read_bytes())
        self.assertEqual((archive["$archiver"], archive["$version"]), ("NSKeyedArchiver", 100000))
        self.assertEqual(archive["$objects"][0], "$null")
        return decoded(archive, archive["$top"]["root"])


class Reading(ArchiveTest):
    def test_takes_a_value_in_any_of_its_forms(self) -> None:
        """Each form gives what the plain one gives."""
        plain = Archive()
        expected = self.written(plain.results(plain.network(deviceName=plain.add("Attic"))))

        a = Archive()
        mutable_text = a.object(
            "NSMutableString NSString NSObject", **{"NS.string": "Attic"}
        )
        mutable_data = a.object("NSMutableData NSData NSObject", **{"NS.data": ELEMENTS})
        scan = a.dictionary(
            {
                "informationElementData": mutable_data, "channelNumber": 6, "rssiValue": a.add(-60),
                "bssid": a.add("a:0:0:0:0:1"), "ssid": a.object("NSString NSObject", **{"NS.string": "Home"}),
                "noiseMeasurement": a.add(-92.0), "ibss": a.add(0), "beaconInterval": a.add(100),
                "phyMode": a.add(False), "securityMode": a.add(2**63 - 1), "unheard": a.add("of"),
                "gone": UID(0),
            },
            "NSMutableDictionary NSDictionary NSObject",
        )
        bare_date = datetime(2023, 11, 14, 22, 13, 20, 500000)
        sample = a.sample("TessaraDataPoint TSDataPoint NSObject", timestamp=a.add(bare_date))
        network = a.network(
            "TessaraNetwork TSNetwork NSObject",
            network=scan, deviceName=mutable_text, lastSeen=a.add(bare_date),
            dataPoints=a.array([sample], "NSMutableArray NSArray NSObject"),
            color=a.rgb(b"1 0.5 0 1"),
        )
        self.assertEqual(self.written(a.results(network)), expected)

    def test_reads_colours(self) -> None:
        def written_as(a: Archive | None = None, **members: Any) -> str:
            a = a or Archive()
            color = a.object("NSColor NSObject", **members)
            result = self.written(a.results(a.network(color=color)))
            numbers = result["networks"][0]["color"]["NSRGB"].rstrip(b"\0").split()
            return " ".join(f"{float(number):.3g}" for number in numbers)

        self.assertEqual(written_as(NSColorSpace=2, NSRGB=b"0 0.25 1 0.5"), "0 0.25 1 0.5")
        self.assertEqual(written_as(NSColorSpace=3, NSWhite=b"0.5\0"), "0.5 0.5 0.5")
        self.assertEqual(written_as(NSColorSpace=4, NSWhite=b"1 0.25"), "1 1 1 0.25")
        self.assertEqual(written_as(NSColorSpace=5, NSCMYK=b"0 0.5 1 0.5 1"), "0.5 0.25 0")
        a = Archive()
        named = a.rgb(b"0 1 0.5")
        self.assertEqual(written_as(a, NSColorSpace=6, NSColor=named), "0 1 0.5")

    def test_keeps_samples_as_they_are(self) -> None:
        a = Archive()
        samples = [
            a.sample(revision=None),
            a.sample(revision=None, channel=None, stationCount=None, chUtilization=None),
            a.sample(rssiValue=-130, noiseValue=0, channel=11),
        ]
        points = self.written(a.results(a.network(dataPoints=a.array(samples))))["networks"][0][
            "dataPoints"
        ]
        keys = ["rssiValue", "noiseValue", "channel", "stationCount", "chUtilization", "revision"]
        self.assertEqual(
            [[point[key] for key in keys] for point in points],
            [[-60, -92, -1, -1, -1, 1], [-60, -92, -1, -1, -1, 1], [-130, 0, 11, 3, 20, 1]],
        )

    def test_rebuilds_what_follows_from_the_data(self) -> None:
        a = Archive()
        values = [(-70, -90), (-71, -92), (-120, -120), (-50, -96)]
        samples = [a.sample(rssiValue=rssi, noiseValue=noise) for rssi, noise in values]
        (record,) = self.records(a.results(a.network(dataPoints=a.array(samples))))
        self.assertEqual(
            {key: record[key] for key in ("rssiAvg", "rssiMin", "rssiMax", "snrAvg", "rssi")},
            {"rssiAvg": -63, "rssiMin": -71, "rssiMax": -50, "snrAvg": 29, "rssi": -50},
        )
        self.assertEqual((record["bssid"], record["ssid"]), ("0A:00:00:00:00:01", "Home"))
        self.assertGreater(record["lastSeenElapsedSeconds"], 1e6)

    def test_prefers_the_name_in_the_elements_and_the_note_in_the_file(self) -> None:
        aruba = bytes.fromhex("dd0a000b86010300") + b"AP-7"
        a = Archive()
        networks = [
            a.network(
                network=a.scan(informationElementData=ELEMENTS + aruba),
                deviceName=a.add("Saved"), annotations=a.add("Roof"),
            ),
            a.network(deviceName=a.add("Saved"), annotations=a.add("")),
            a.network(),
        ]
        results = self.written(a.results(*networks))["networks"]
        self.assertEqual(
            [(n.get("deviceName"), n.get("annotations")) for n in results],
            [("AP-7", "Roof"), ("Saved", ""), (None, None)],
        )

    def test_leaves_out_what_is_no_record(self) -> None:
        a = Archive()
        scan_result = a.object("CWNetwork NSObject", anything=a.add("at all"))
        networks = [
            a.network(network=a.scan(bssid=None)),
            a.network(network=a.scan(bssid="")),
            a.network(network=a.scan(channelNumber=0, informationElementData=b"")),
            a.network(network=None),
            a.network(network=scan_result),
            a.network(network=a.scan(bssid="2:0:0:0:0:2")),
        ]
        self.assertEqual([r["bssid"] for r in self.records(a.results(*networks))], ["02:00:00:00:00:02"])
        for root in (UID(0), None):
            empty = Archive().bytes(root) if root else Archive().bytes(None, **{"$top": {}})
            self.assertEqual(self.records(empty), [])
        self.assertEqual(self.records(a.bytes(a.dictionary({}))), [])


class Refusing(ArchiveTest):
    def check(self, content: bytes, reason: str) -> None:
        result = self.run_cli(content, "networks", self.file, "--format", "json")
        self.assertEqual((result.returncode, result.stdout), (1, ""))
        self.assertEqual(result.stderr.count("\n"), 1, result.stderr)
        self.assertIn(f"{self.file}: this is no valid results file: ", result.stderr)
        self.assertIn(reason, result.stderr)

    def test_refuses_values_of_the_wrong_kind(self) -> None:
        def with_network(**members: str) -> bytes:
            a = Archive()
            values = {
                "text": a.add("text"), "number": a.add(7), "list": a.array([]),
                "wild": UID(999_999), "itself": UID(len(a.objects)),
                "never": a.object("NSDate NSObject", **{"NS.time": float("nan")}),
                "late": a.date(1e300), "colour": a.rgb(b"red"),
            }
            return a.results(a.network(**{key: values[value] for key, value in members.items()}))

        def with_scan(**changes: Any) -> bytes:
            a = Archive()
            return a.results(a.network(network=a.scan(**changes)))

        def with_sample(**changes: Any) -> bytes:
            a = Archive()
            return a.results(a.network(dataPoints=a.array([a.sample(**changes)])))

        cases = {
            with_network(network="text"): '"network" is no collection',
            with_network(network="list"): '"network" is no collection',
            with_network(dataPoints="number"): '"dataPoints" is no collection',
            with_network(lastSeen="text"): '"lastSeen" is no date',
            with_network(lastSeen="never"): '"lastSeen" is no date',
            with_network(lastSeen="late"): '"lastSeen" is no date',
            with_network(lastSeen="wild"): "damaged",
            with_network(color="number"): '"color" is no colour',
            with_network(color="colour"): '"color" is no colour',
            with_network(deviceName="number"): '"deviceName" is no text',
            with_scan(bssid=7): "is no text",
            with_scan(informationElementData="text"): "is no data",
            with_scan(channelNumber="6"): "is no number",
            with_scan(channelNumber=-1): "no number of a channel",
            with_scan(channelNumber=2**60): "no number of a channel",
            with_sample(rssiValue="strong"): '"rssiValue" is no number',
            with_sample(classes="TSNetwork NSObject"): "no sample",
        }
        for content, reason in cases.items():
            with self.subTest(reason):
                self.check(content, reason)
        a = Archive()
        self.check(a.results(a.sample()), "no network")
        self.check(a.bytes(a.array([])), "is no collection")

    def test_refuses_what_refers_to_itself(self) -> None:
        a = Archive()
        circle = a.array([])
        a.objects[circle.data]["NS.objects"].append(circle)
        self.check(a.results(a.network(dataPoints=circle)), "no sample")
        self.check(a.results(circle), "no network")
        a = Archive()
        a.objects.append(UID(1))
        self.check(a.bytes(UID(1)), "damaged")
        a = Archive()
        sample = a.sample()
        network = a.network(dataPoints=a.array([sample] * 30_000))
        self.check(a.results(*[network] * 30_000), "without end")

    def test_refuses_what_is_no_archive(self) -> None:
        a = Archive()
        good = a.results(a.network())
        self.check(b"", "no binary property list")
        self.check(plistlib.dumps({"a": 1}), "no binary property list")
        self.check(plistlib.dumps({"a": 1}, fmt=plistlib.FMT_BINARY), "no keyed archive")
        self.check(plistlib.dumps([1], fmt=plistlib.FMT_BINARY), "no keyed archive")
        for length in (1, 8, 39, len(good) // 2, len(good) - 33, len(good) - 32, len(good) - 1):
            with self.subTest(length=length):
                self.check(good[:length], "")
        # The trailer: sizes of offsets and references, objects, root, place of the table.
        for place, number in [(6, 0), (6, 255), (7, 0), (7, 255), (8, 255), (16, 255), (24, 255)]:
            with self.subTest(place=place, number=number):
                damaged = bytearray(good)
                damaged[len(good) - 32 + place] = number
                self.check(bytes(damaged), "")


if __name__ == "__main__":
    unittest.main()
