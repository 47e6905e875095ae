#!/usr/bin/env python3
"""Writes docs/formats.md, the built-in export catalogue as tables.

Usage: tools/formats-table.py [--check] [VEXCONVERT]

Asks the program VEXCONVERT, build/dev/host/vexconvert by default, so build that first. With --check
nothing is written; the exit code is 1 where the page isn't what the program says.
"""

import json
import os
import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
USUAL_PROGRAM = ROOT / "build/dev/host/vexconvert"
PAGE = ROOT / "docs/formats.md"

HEAD = """# The export formats

All formats and presets of the built-in catalogue: {formats} formats, {presets} presets. This page is
written by `tools/formats-table.py` from what `vexconvert` says of the catalogue in
`utility/catalogue/`; change that.

"source" keeps the source's own value, and "auto" leaves the bitrate to the encoder, which then aims
at a good quality. A size is a box that the picture is fitted into. Behind a video bitrate stand
those of the low and the high quality.
"""
VIDEO_COLUMNS = ["Id", "Title", "File", "Video", "Size", "Fps", "kbps", "Audio", "Channels", "Hz",
                 "kbps"]
AUDIO_COLUMNS = ["Id", "Title", "File", "Codec", "Channels", "Hz", "kbps"]


def told(vexconvert, *arguments):
    """What a subcommand prints as JSON, of the built-in catalogue and without a user's presets."""
    environment = {**os.environ, "VEX_EXPORT_CATALOGUE": ""}
    with tempfile.TemporaryDirectory() as folder:
        command = [vexconvert, *arguments, "--json", "--config", folder]
        return json.loads(subprocess.run(command, check=True, env=environment,
                                         stdout=subprocess.PIPE).stdout)


def categories(vexconvert):
    """Each category with its formats, each format with its presets as the catalogue has them."""
    result = {}
    for each in told(vexconvert, "formats"):
        presets = [preset["outPutNode"] for preset in told(vexconvert, "presets", each["title"])]
        category = presets[0]["id"].split("_")[0]
        result.setdefault(category, []).append((each["title"], presets))
    return result


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


def video_cells(preset):
    param = preset["videoParam"]
    high, _, low = preset["videoOptions"]["levelList"]
    levels = f" ({low} to {high})" if high else ""
    return [number(param["encoder"]), number(param["resolution"]), number(param["frameRate"]),
            number(param["bitrateKbps"], "auto") + levels]


def row(preset):
    first = [f"`{preset['id']}`", preset["title"], "." + preset["extension"]]
    if "videoParam" in preset:
        first += video_cells(preset)
    return first + audio_cells(preset)


def offered(presets, block):
    """The encoders that the presets of a format offer, each once."""
    encoders = {}
    for preset in presets:
        for encoder in preset.get(block, {}).get("encoderList", []):
            encoders[number(encoder)] = None
    return ", ".join(encoders)


def page(vexconvert):
    body = []
    counts = {"formats": 0, "presets": 0}
    for category, formats in categories(vexconvert).items():
        body += ["", f"## {category}"]
        for name, presets in formats:
            counts["formats"] += 1
            counts["presets"] += len(presets)
            choices = [f"{kind}: {encoders}" for kind, encoders in (
                ("Video", offered(presets, "videoOptions")),
                ("Audio", offered(presets, "audioOptions"))) if encoders]
            columns = VIDEO_COLUMNS if "videoParam" in presets[0] else AUDIO_COLUMNS
            body += ["", f"### {name}", "", "Encoders offered. " + ". ".join(choices) + ".", ""]
            body += table(columns, map(row, presets))
    return HEAD.format(**counts) + "\n".join(body) + "\n"


def main():
    arguments = sys.argv[1:]
    checks = arguments[:1] == ["--check"]
    programs = arguments[checks:] or [USUAL_PROGRAM]
    if len(programs) > 1 or str(programs[0]).startswith("-"):
        sys.exit(__doc__.strip())
    text = page(programs[0])
    if not checks:
        PAGE.write_text(text, encoding="utf-8")
    elif PAGE.read_text(encoding="utf-8") != text:
        sys.exit("docs/formats.md is out of date; run tools/formats-table.py")


if __name__ == "__main__":
    main()
