#!/usr/bin/python3
"""Checks the built-in catalogue against its schema, and that the schema refuses invalid files.

Usage: tst_catalogueschema.py TOOL, where TOOL is the program that prints the schema.
"""

import json
import pathlib
import subprocess
import sys
import unittest

from jsonschema import Draft7Validator

CATALOGUE = pathlib.Path(__file__).resolve().parents[2] / "utility/catalogue"
FILE = CATALOGUE / "catalogue.schema.json"
SCHEMA = json.loads(FILE.read_text())

VALID = {
    "category": "Video",
    "lists": {"sizes": ["0", "1280x720"], "rates": [0, 29.97]},
    "templates": {"hd": {"title": "HD", "videoParam": {"resolution": "1280x720"}}},
    "groups": [{
        "name": "MP4", "icon": "fmt_mp4", "extension": "mp4", "template": "hd",
        "idName": "MP4", "limit": "The maker's list", "status": "discontinued",
        "presets": [{
            "id": "Video_MP4_001", "title": "HD", "template": "hd", "extension": "mp4",
            "videoParam": {
                "encoder": "h264", "resolution": "1280x720", "frameRate": 29.97,
                "bitrateKbps": 4000,
            },
            "videoOptions": {
                "encoderList": ["0", "h264"], "resolutionList": "sizes",
                "frameRateList": [0, 29.97], "bitrateKbpsList": [0, 4000, 8000],
                "levelList": [8000, 4000, 2000],
            },
            "audioParam": {"encoder": "aac", "channel": 2, "sampleRate": 48000,
                           "bitrateKbps": 192},
            "audioOptions": {
                "encoderList": ["aac"], "channelList": [0, 2], "sampleRateList": [0, 48000],
                "bitrateKbpsList": [0, 192],
            },
        }],
    }],
}

MISSING = object()
PRESET = ("groups", 0, "presets", 0)

# Changes that make the valid file invalid: path and new value.
INVALID = [
    (("category",), MISSING),
    (("category",), ""),
    (("category",), "Social Video"),
    (("groups",), MISSING),
    (("groups",), {}),
    (("note",), "unknown keys are mistakes"),
    (("lists",), []),
    (("lists", "rates"), 30),
    (("lists", "rates"), [0, "30"]),
    (("lists", "rates"), [[0, 30]]),
    (("templates",), []),
    (("templates", "hd"), "HD"),
    (("templates", "hd", "id"), "Video_MP4_001"),
    (("templates", "hd", "template"), "other"),
    (("templates", "hd", "videoParam", "resolution"), "1280*720"),
    (("groups", 0), "MP4"),
    (("groups", 0, "name"), MISSING),
    (("groups", 0, "name"), ""),
    (("groups", 0, "icon"), "mp4.svg"),
    (("groups", 0, "presets"), MISSING),
    (("groups", 0, "presets"), {}),
    (("groups", 0, "id"), "Video_MP4_001"),
    (("groups", 0, "template"), 1),
    (("groups", 0, "idName"), "Mp4"),
    (("groups", 0, "limit"), ""),
    (("groups", 0, "status"), "retired"),
    (PRESET, "Video_MP4_001"),
    (PRESET + ("id",), MISSING),
    (PRESET + ("id",), 1),
    (PRESET + ("id",), "Video_MP4_1"),
    (PRESET + ("id",), "Video_mp4_001"),
    (PRESET + ("id",), "Video_HEVC MP4_001"),
    (PRESET + ("title",), ""),
    (PRESET + ("extension",), ".mp4"),
    (PRESET + ("template",), ""),
    (PRESET + ("VideoParam",), {}),
    (PRESET + ("videoParam",), []),
    (PRESET + ("videoParam", "codec"), "h264"),
    (PRESET + ("videoParam", "encoder"), 264),
    (PRESET + ("videoParam", "encoder"), "H.264"),
    (PRESET + ("videoParam", "resolution"), 0),
    (PRESET + ("videoParam", "resolution"), "1280x720p"),
    (PRESET + ("videoParam", "resolution"), "0x720"),
    (PRESET + ("videoParam", "frameRate"), "29.97"),
    (PRESET + ("videoParam", "resolution"), "1280x16385"),
    (PRESET + ("videoParam", "frameRate"), -1),
    (PRESET + ("videoParam", "frameRate"), 0.5),
    (PRESET + ("videoParam", "frameRate"), 301),
    (PRESET + ("videoParam", "bitrateKbps"), 1000001),
    (PRESET + ("videoParam", "bitrateKbps"), "4000"),
    (PRESET + ("videoParam", "bitrateKbps"), 4000.5),
    (PRESET + ("videoOptions", "encoders"), ["h264"]),
    (PRESET + ("videoOptions", "encoderList"), []),
    (PRESET + ("videoOptions", "encoderList"), ["h264", "h264"]),
    (PRESET + ("videoOptions", "encoderList"), ["h264", 0]),
    (PRESET + ("videoOptions", "resolutionList"), ""),
    (PRESET + ("videoOptions", "resolutionList"), ["1280x720", 0]),
    (PRESET + ("videoOptions", "frameRateList"), [0, "30"]),
    (PRESET + ("videoOptions", "bitrateKbpsList"), 4000),
    (PRESET + ("videoOptions", "levelList"), [8000, 4000]),
    (PRESET + ("videoOptions", "levelList"), [8000, 4000, 2000, 1000]),
    (PRESET + ("videoOptions", "levelList"), [8000, "4000", 2000]),
    (PRESET + ("videoOptions", "levelList"), [1000001, 4000, 2000]),
    (PRESET + ("audioParam", "channels"), 2),
    (PRESET + ("audioParam", "channel"), "2"),
    (PRESET + ("audioParam", "channel"), 65),
    (PRESET + ("audioParam", "sampleRate"), 44.1),
    (PRESET + ("audioParam", "sampleRate"), 999),
    (PRESET + ("audioParam", "sampleRate"), 768001),
    (PRESET + ("audioParam", "bitrateKbps"), 100001),
    (PRESET + ("audioParam", "bitrateKbps"), 12.2),
    (PRESET + ("audioOptions", "channels"), [2]),
    (PRESET + ("audioOptions", "channelList"), [1, -2]),
    (PRESET + ("audioOptions", "sampleRateList"), [0, "48000"]),
]

BOUNDS = [
    ("videoParam", "resolution", ["0", "1x1", "16384x16384"]),
    ("videoParam", "frameRate", [0, 1, 300]),
    ("videoParam", "bitrateKbps", [0, 1, 1000000]),
    ("videoOptions", "levelList", [[1000000, 0, 0]]),
    ("audioParam", "channel", [0, 1, 64]),
    ("audioParam", "sampleRate", [0, 1000, 768000]),
    ("audioParam", "bitrateKbps", [0, 1, 100000]),
]


def changed(path, value):
    copy = json.loads(json.dumps(VALID))
    place = copy
    for key in path[:-1]:
        place = place[key]
    if value is MISSING:
        del place[path[-1]]
    else:
        place[path[-1]] = value
    return copy


class CatalogueSchema(unittest.TestCase):
    def setUp(self):
        Draft7Validator.check_schema(SCHEMA)
        self.validator = Draft7Validator(SCHEMA)

    def errors_in(self, catalogue):
        return [(tuple(error.absolute_path), error.message)
                for error in self.validator.iter_errors(catalogue)]

    def test_it_is_what_the_tables_of_the_reader_say(self):
        written = subprocess.run([TOOL], check=True, stdout=subprocess.PIPE).stdout
        self.assertEqual(written.decode(), FILE.read_text(),
                         f"it is out of date; run {TOOL} > {FILE}")

    def test_the_built_in_files_are_valid(self):
        files = sorted(CATALOGUE.glob("*.json"))
        files.remove(FILE)
        self.assertEqual(len(files), 4)
        for file in files:
            with self.subTest(file=file.name):
                self.assertEqual(self.errors_in(json.loads(file.read_text())), [])

    def test_a_file_with_every_key_is_valid(self):
        self.assertEqual(self.errors_in(VALID), [])

    def test_the_bounds_are_still_allowed(self):
        for block, key, values in BOUNDS:
            for value in values:
                with self.subTest(key=key, value=value):
                    self.assertEqual(self.errors_in(changed(PRESET + (block, key), value)), [])

    def test_mistakes_are_refused_in_their_place(self):
        for path, value in INVALID:
            with self.subTest(path=path, value="missing" if value is MISSING else value):
                errors = self.errors_in(changed(path, value))
                self.assertEqual(len(errors), 1, errors)
                # An error about a list element is at its index, one about an extra or missing key
                # at its object.
                place = errors[0][0]
                self.assertIn(place[:len(path)], (path, path[:-1]))


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__.strip())
    TOOL = sys.argv.pop(1)
    unittest.main()
