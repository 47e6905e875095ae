#!/usr/bin/env python3
"""Writes docs/formats.md, the built-in export catalogue as tables.

Usage: tools/formats-table.py [--check]

With --check nothing is written; the exit code is 1 where the page isn't what the catalogue says.
"""

import json
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
CATALOGUE = ROOT / "utility/catalogue"
PAGE = ROOT / "docs/formats.md"

HEAD = """# The export formats

All formats and presets of the built-in catalogue: {formats} formats, {presets} presets. This page is
written by `tools/formats-table.py` from the files in `utility/catalogue/`; change those.

"source" keeps the source's own value, and "auto" leaves the bitrate to the encoder, which then aims
at a good quality. A size is a box that the picture is fitted into. Behind a video bitrate stand
those of the low and the high quality.
"""
VIDEO_COLUMNS = ["Id", "Title", "File", "Video", "Size", "Fps", "kbps", "Audio", "Channels", "Hz",
                 "kbps"]
AUDIO_COLUMNS = ["Id", "Title", "File", "Codec", "Channels", "Hz", "kbps"]


def merged(base, over):
    result = dict(base)
    for key, value in over.items():
        both_nested = isinstance(value, dict) and isinstance(base.get(key), dict)
        result[key] = merged(base[key], value) if both_nested else value
    return result


class Names:
    """The lists and templates that the files define, one after another."""

    def __init__(self):
        self.lists = {}
        self.templates = {}

    def add(self, file):
        self.lists.update(file.get("lists", {}))
        self.templates.update(file.get("templates", {}))

    def over_template(self, settings):
        own = {key: value for key, value in settings.items() if key != "template"}
        return merged(self.templates.get(settings.get("template"), {}), own)

    def values(self, options):
        return self.lists[options] if isinstance(options, str) else options


def categories():
    """Each category with its groups, each group with its complete presets."""
    names = Names()
    for path in sorted(CATALOGUE.glob("[0-9]-*.json")):
        file = json.loads(path.read_text(encoding="utf-8"))
        names.add(file)
        groups = []
        for group in file["groups"]:
            usual = names.over_template(group)
            presets = [merged(usual, names.over_template(preset)) for preset in group["presets"]]
            groups.append((group["name"], presets))
        yield file["category"], groups, names


def number(value, unset="source"):
    return unset if value in (0, "0") else str(value)


def table(columns, rows):
    yield "| " + " | ".join(columns) + " |"
    yield "|" + "---|" * len(columns)
    for row in rows:
        yield "| " + " | ".join(row) + " |"


def audio_cells(preset):
    param = preset.get("audioParam")
    if not param:
        return ["none", "", "", ""]
    return [number(param["encoder"]), number(param["channel"]), number(param["sampleRate"]),
            number(param["bitrateKbps"], "auto")]


def video_cells(preset, names):
    param = preset["videoParam"]
    high, _, low = names.values(preset["videoOptions"]["levelList"])
    levels = f" ({low} to {high})" if high else ""
    return [number(param["encoder"]), number(param["resolution"]), number(param["frameRate"]),
            number(param["bitrateKbps"], "auto") + levels]


def row(preset, names):
    first = [f"`{preset['id']}`", preset["title"], "." + preset["extension"]]
    if "videoParam" in preset:
        first += video_cells(preset, names)
    return first + audio_cells(preset)


def offered(presets, block, names):
    """The encoders that the presets of a format offer, each once."""
    encoders = {}
    for preset in presets:
        for encoder in names.values(preset.get(block, {}).get("encoderList", [])):
            encoders[number(encoder)] = None
    return ", ".join(encoders)


def page():
    body = []
    counts = {"formats": 0, "presets": 0}
    for category, groups, names in categories():
        body += ["", f"## {category}"]
        for name, presets in groups:
            counts["formats"] += 1
            counts["presets"] += len(presets)
            choices = [f"{kind}: {encoders}" for kind, encoders in (
                ("Video", offered(presets, "videoOptions", names)),
                ("Audio", offered(presets, "audioOptions", names))) if encoders]
            columns = VIDEO_COLUMNS if "videoParam" in presets[0] else AUDIO_COLUMNS
            body += ["", f"### {name}", "", "Encoders offered. " + ". ".join(choices) + ".", ""]
            body += table(columns, (row(preset, names) for preset in presets))
    return HEAD.format(**counts) + "\n".join(body) + "\n"


def main():
    if sys.argv[1:] not in ([], ["--check"]):
        sys.exit(__doc__.strip())
    text = page()
    if not sys.argv[1:]:
        PAGE.parent.mkdir(exist_ok=True)
        PAGE.write_text(text, encoding="utf-8")
    elif not PAGE.exists() or PAGE.read_text(encoding="utf-8") != text:
        sys.exit("docs/formats.md isn't what utility/catalogue/ says; run tools/formats-table.py")


if __name__ == "__main__":
    main()
