#!/usr/bin/env python3
"""Holds HandBrake's presets, imported and converted with, against HandBrake itself.

Usage: tools/compare-handbrake.py VEXCONVERT CLIP [PRESET...]

Prints a table of Markdown: bytes of the video, SSIM against the source scaled to the result's size,
codec and frame rate of both, and how far ours are from HandBrake's. The clip must be slower than the
presets' frame rates, as frames are compared one by one. Needs HandBrakeCLI and ffmpeg.
"""

import json
import pathlib
import re
import subprocess
import sys
import tempfile

USUAL_PRESETS = [
    "Fast 1080p30", "Very Fast 720p30", "HQ 1080p30 Surround", "Super HQ 720p30 Surround",
    "Fast 480p30", "Creator 1080p60", "Social 8 MB 3 Minutes 360p30", "Android 720p30",
    "H.265 MKV 1080p30", "H.264 MKV 720p30",
]


def run(*command, **options):
    return subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                          check=True, **options)


def video_of(path):
    probed = run("ffprobe", "-v", "error", "-select_streams", "v:0", "-show_entries",
                 "stream=codec_name,width,height,avg_frame_rate", "-of", "json", path)
    return json.loads(probed.stdout)["streams"][0]


def ssim_of(path, source):
    video = video_of(path)
    # Frame by frame, as the first frames of the two needn't have the same time.
    graph = (f"[1:v]scale={video['width']}:{video['height']}:flags=bicubic,format=yuv420p,"
             "setpts=N/30/TB[source];[0:v]format=yuv420p,setpts=N/30/TB[own];[own][source]ssim")
    log = run("ffmpeg", "-hide_banner", "-i", path, "-i", source, "-lavfi", graph, "-f", "null", "-")
    return float(re.search(r"All:([0-9.]+)", log.stderr)[1])


def video_bytes(path):
    packets = run("ffprobe", "-v", "error", "-select_streams", "v:0", "-show_entries", "packet=size",
                  "-of", "csv=p=0", path)
    return sum(int(size.strip(",")) for size in packets.stdout.split())


def facts_of(path, source):
    video = video_of(path)
    return {
        "bytes": video_bytes(path),
        "ssim": ssim_of(path, source),
        "codec": video["codec_name"],
        "size": f"{video['width']}x{video['height']}",
        "rate": video["avg_frame_rate"],
    }


def own_result(vexconvert, name, source, folder):
    exported = run("HandBrakeCLI", "-Z", name, "--preset-export", name).stdout
    file = folder / "preset.json"
    file.write_text(exported, encoding="utf-8")
    config = folder / "config"
    command = [vexconvert, "--config", str(config)]
    imported = json.loads(run(*command, "user", "import", str(file), "--json").stdout)["imported"]
    own = json.loads(run(*command, "user", "list", "--json").stdout)
    extension = next(preset["extension"] for preset in own if preset["id"] == imported[0])
    result = folder / f"own.{extension}"
    run(*command, "convert", str(source), "--preset", imported[0], "-o", str(result), "--overwrite")
    return result


def handbrake_result(name, source, folder, extension):
    result = folder / f"handbrake.{extension}"
    run("HandBrakeCLI", "-Z", name, "--crop", "0:0:0:0", "-i", str(source), "-o", str(result))
    return result


def main():
    vexconvert, source, *names = sys.argv[1:]
    source = pathlib.Path(source)
    print(f"| {source.name} | HandBrake: video, SSIM | imported: video, SSIM | bytes | codec, picture, rate |")
    print("|---|---|---|---|---|")
    for name in names or USUAL_PRESETS:
        with tempfile.TemporaryDirectory() as folder:
            folder = pathlib.Path(folder)
            own_path = own_result(vexconvert, name, source, folder)
            theirs = facts_of(handbrake_result(name, source, folder, own_path.suffix[1:]), source)
            own = facts_of(own_path, source)
            same = all(own[key] == theirs[key] for key in ("codec", "size", "rate"))
            what = f"{own['codec']}, {own['size']}, {own['rate']}"
            other = f"{theirs['codec']}, {theirs['size']}, {theirs['rate']}"
            print(f"| {name} | {theirs['bytes'] // 1000} kB, {theirs['ssim']:.4f} "
                  f"| {own['bytes'] // 1000} kB, {own['ssim']:.4f} "
                  f"| {100 * own['bytes'] / theirs['bytes'] - 100:+.1f} % "
                  f"| {what if same else what + ' (HandBrake: ' + other + ')'} |", flush=True)


if __name__ == "__main__":
    main()
