"""The schema of overlays is up to date and suits what the program takes and refuses.

Usage: tst_overlayschema.py VEXCONVERT
"""

import json
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

from jsonschema import Draft7Validator

ROOT = pathlib.Path(__file__).resolve().parents[3]
FILE = ROOT / "host/catalogue/overlay.schema.json"
SCHEMA = json.loads(FILE.read_text(encoding="utf-8"))
PAGE = (ROOT / "docs/overlays.md").read_text(encoding="utf-8")
EXAMPLE = json.loads(re.search(r"```json\n(.*?)```", PAGE, re.DOTALL)[1])
PROGRAM = sys.argv.pop(1)

INVALID = [
    [],
    {"hidden": {}},
    {"hide": []},
    {"hide": {"presets": "Device_TV_001"}},
    {"hide": {"presets": [1]}},
    {"hide": {"tags": []}},
    {"change": {"Device_TV_001": 1}},
    {"change": {"Device_TV_001": {"id": "X"}}},
    {"change": {"Device_TV_001": {"template": "X"}}},
    {"change": {"Device_TV_001": {"videoParam": {"bitrateKbps": "4"}}}},
    {"groups": []},
    {"category": "Device", "groups": [
        {"name": "TV", "presets": [{"id": "Device_TV_009", "like": 1}]}]},
    {"category": "Device", "templates": {"T": {}}, "groups": [
        {"name": "TV",
         "presets": [{"id": "Device_TV_009", "like": "Device_TV_001", "template": "T"}]}]},
    {"aliases": {"X": 1}},
    {"aliases": {"X": ""}},
]


class TestOverlaySchema(unittest.TestCase):
    def presets_with(self, overlay):
        """What the program lists and reports with the overlay."""
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "catalogues/1.json"
            path.parent.mkdir()
            path.write_text(json.dumps(overlay), encoding="utf-8")
            run = subprocess.run([PROGRAM, "--config", folder, "presets", "--json"], check=True,
                                 capture_output=True, text=True)
        return {preset["id"]: preset for preset in json.loads(run.stdout)}, run.stderr

    def test_the_file_is_up_to_date(self):
        printed = subprocess.run([ROOT / "tools/overlay-schema.py"], check=True,
                                 capture_output=True, text=True).stdout
        self.assertEqual(printed, FILE.read_text(encoding="utf-8"),
                         "run tools/overlay-schema.py > host/catalogue/overlay.schema.json")

    def test_the_documented_example_is_valid_and_does_what_it_says(self):
        Draft7Validator.check_schema(SCHEMA)
        Draft7Validator(SCHEMA).validate(EXAMPLE)
        presets, reported = self.presets_with(EXAMPLE)
        self.assertEqual(reported, "")
        self.assertNotIn("Device_ROKU_005", presets)
        self.assertEqual(presets["Device_ROKU_001"]["outPutNode"]["videoParam"]["bitrateKbps"], 20000)
        self.assertEqual(presets["Device_ROKU_006"]["outPutNode"]["videoParam"]["resolution"],
                         "2560x1440")
        self.assertIn("Device_FAIRPHONE_001", presets)

    def test_null_takes_values_away(self):
        overlay = {"change": {"Device_TV_001": {"status": None, "videoParam": {"hevcLevel": None}}}}
        Draft7Validator(SCHEMA).validate(overlay)
        self.assertEqual(self.presets_with(overlay)[1], "")

    def test_what_the_program_leaves_out_is_invalid(self):
        for overlay in INVALID:
            with self.subTest(overlay=overlay):
                self.assertFalse(Draft7Validator(SCHEMA).is_valid(overlay))
                served = {"hidden": {}}, {"hide": {"tags": []}}
                if overlay not in served:
                    self.assertIn("left out", self.presets_with(overlay)[1])


if __name__ == "__main__":
    unittest.main()
