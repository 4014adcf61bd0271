"""The manual pages tell what the programs do, and desktops accept what they are told.

TESSARA and TESSARA_CLI name the programs.
"""

import os
import re
import shutil
import subprocess
import unittest
from pathlib import Path

PACKAGING = Path(__file__).parents[2] / "packaging"
OPTION = re.compile(r"(?<![\w-])--[a-z][a-z-]+")


def help_of(program, *words):
    return subprocess.run(
        [os.environ[program], *words, "--help"], check=True, capture_output=True, text=True
    ).stdout


def page(name):
    return (PACKAGING / "man" / name).read_text().replace(r"\-", "-")


class Manual(unittest.TestCase):
    def assert_tells_the_options_of(self, name, texts):
        self.assertEqual(
            set(OPTION.findall(page(name))) - {"--version"},
            set(OPTION.findall(" ".join(texts))) - {"--version"},
        )

    def test_page_of_the_window_has_its_options_and_no_others(self):
        self.assert_tells_the_options_of("tessara.1", [help_of("TESSARA")])

    def test_page_of_the_terminal_has_each_command_and_option_and_no_others(self):
        commands = re.findall(r"^  (\w+) ", help_of("TESSARA_CLI"), re.MULTILINE)
        told = re.findall(r"^\.TP\n\.B (\w+)$", page("tessara-cli.1"), re.MULTILINE)
        self.assertGreater(len(commands), 1)
        self.assertLessEqual(set(commands), set(told))
        self.assert_tells_the_options_of(
            "tessara-cli.1", [help_of("TESSARA_CLI", command) for command in commands]
        )


class Version(unittest.TestCase):
    def test_package_and_software_centres_are_told_the_newest(self):
        words = subprocess.run(
            [os.environ["TESSARA_CLI"], "--version"], check=True, capture_output=True, text=True
        ).stdout.split()
        (metainfo,) = PACKAGING.glob("*.metainfo.xml")
        releases = re.findall(r'<release version="([^"]*)"', metainfo.read_text())
        changes = re.findall(r"^tessara \((.*?)\)", (PACKAGING / "debian/changelog").read_text())
        self.assertEqual([words[-1], words[-1]], [releases[0], changes[0]])


class Validated(unittest.TestCase):
    def check(self, *command):
        if not shutil.which(command[0]):
            self.skipTest(f"needs {command[0]}, which is not installed")
        done = subprocess.run(command, cwd=PACKAGING, capture_output=True, text=True, check=False)
        self.assertEqual((done.returncode, done.stderr), (0, ""), done.stdout)

    def test_desktop_entry(self):
        self.check("desktop-file-validate", "--warn-kde", "tessara.desktop")

    def test_metadata_for_software_centres(self):
        self.check("appstreamcli", "validate", "--no-net", *PACKAGING.glob("*.metainfo.xml"))

    def test_layout_of_the_manual_pages(self):
        self.check("groff", "-z", "-ww", "-man", *PACKAGING.glob("man/*.1"))


if __name__ == "__main__":
    unittest.main()
