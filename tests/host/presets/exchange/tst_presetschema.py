"""What the program exports, and only that, suits host/presets/exchange/presets.schema.json.

Usage: tst_presetschema.py VEXCONVERT
"""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

import jsonschema

ROOT = pathlib.Path(__file__).resolve().parents[4]
SCHEMA = json.loads((ROOT / "host/presets/exchange/presets.schema.json").read_text(encoding="utf-8"))
PROGRAM = sys.argv.pop(1)


class TestPresetSchema(unittest.TestCase):
    def run_program(self, *arguments):
        return subprocess.run([PROGRAM, "--config", self.folder, *arguments], check=True,
                              capture_output=True, text=True).stdout

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def test_exported_presets_are_valid(self):
        golden = pathlib.Path(__file__).parent / "golden"
        files = sorted(str(path) for path in golden.glob("*.in.*"))
        self.run_program("user", "import", *files)
        exported = json.loads(self.run_program("user", "export", "-"))
        self.assertGreaterEqual(len(exported["presets"]), len(files))
        jsonschema.validate(exported, SCHEMA)

    def test_what_import_refuses_is_invalid(self):
        for preset in ({"title": ""}, {"title": "x", "path": "y"},
                       {"title": "x", "settings": {"vf": "y"}},
                       {"title": "x", "settings": {"h264-speed": "fast:y"}},
                       {"title": "x", "settings": {"quality": "best"}}):
            with self.subTest(preset=preset), self.assertRaises(jsonschema.ValidationError):
                jsonschema.validate({"version": 1, "presets": [preset]}, SCHEMA)

    def test_all_settings_are_described(self):
        names = SCHEMA["properties"]["presets"]["items"]["properties"]["settings"]["properties"]
        with open(f"{self.folder}/unknown.json", "w", encoding="utf-8") as file:
            json.dump({"version": 1, "presets": [
                {"title": name, "base": "Video_MP4_005", "settings": {name: "?"}}
                for name in names]}, file)
        shown = json.loads(self.run_program("user", "import", "--dry-run", "--json",
                                            f"{self.folder}/unknown.json"))
        for preset in shown["presets"]:
            self.assertNotIn("not a known key", preset["reason"])


if __name__ == "__main__":
    unittest.main()
