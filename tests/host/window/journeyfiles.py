"""What the desktop journey converts, how fast, and a watch over what comes of it."""

import json
import os
import pathlib
import shutil
import subprocess
import threading
import urllib.parse

from desktopuser import check

SECONDS = 6
ODD = 'it\'s 100% "odd" #1.wav'
FROM_RIGHT = "שיר.mp3"
CLIPS = [
    "film.mp4",
    "song.mp3",
    "album.flac",
    "clip.webm",
    "inner.wav",
    "phone.mkv",
    "silent.mp4",
    "take.wav",
    ODD,
    FROM_RIGHT,
]


def make_files(folder):
    """Media of many kinds, and what is none."""
    video = ["-f", "lavfi", "-i", f"testsrc2=duration={SECONDS}:size=320x240"]
    sine = ["-f", "lavfi", "-i", f"sine=duration={SECONDS}"]
    cover = [
        "-i",
        folder / "picture.jpg",
        "-map",
        "0",
        "-map",
        "1",
        "-disposition:v",
        "attached_pic",
    ]
    quick = ["-preset", "ultrafast"]
    kinds = [
        ("picture.jpg", [*video, "-frames:v", "1", "-update", "1"]),
        ("film.mp4", [*video, *sine, *quick]),
        (
            "phone.mkv",
            [*video, *sine, "-c:v", "libx265", *quick, "-x265-params", "log-level=error"],
        ),
        (
            "clip.webm",
            [*video, *sine, "-c:v", "libvpx-vp9", "-deadline", "realtime", "-cpu-used", "8"],
        ),
        ("silent.mp4", [*video, *quick]),
        ("song.mp3", [*sine, *cover]),
        ("album.flac", [*sine, *cover]),
        ("take.wav", sine),
        (ODD, sine),
        (FROM_RIGHT, sine),
        ("more/deep/inner.wav", sine),
    ]
    (folder / "more" / "deep").mkdir(parents=True)
    for name, arguments in kinds:
        subprocess.run(["ffmpeg", "-v", "error", *arguments, folder / name], check=True)
    (folder / "broken.mp4").write_bytes((folder / "film.mp4").read_bytes()[:2000])
    (folder / "list.m3u").write_text("song.mp3\n")


class Pace:
    """ffmpeg converts at the pace of a player, so that there is time to do things meanwhile."""

    def __init__(self, work):
        (work / "bin").mkdir()
        self._slow = work / "slow"
        self._ids = work / "converters"
        stand_in = work / "bin" / "ffmpeg"
        stand_in.write_text(
            "#!/bin/sh\n"
            f'case "$*" in */part) echo $$ >>{self._ids}\n'
            f'    [ ! -e {self._slow} ] || set -- -re "$@";; esac\n'
            f'exec {shutil.which("ffmpeg")} "$@"\n'
        )
        stand_in.chmod(0o755)

    def slow(self):
        self._slow.touch()

    def full(self):
        self._slow.unlink()

    def states(self):
        """The states of the conversions that are running, "T" for one that is stopped."""
        found = []
        for number in self._ids.read_text().split() if self._ids.exists() else []:
            process = pathlib.Path("/proc", number)
            try:
                if b"/part" in (process / "cmdline").read_bytes():
                    found.append((process / "stat").read_text().rpartition(")")[2].split()[0])
            except OSError:
                pass  # it has ended
        return found


class Results(threading.Thread):
    """Looks at the output folder all the time: a file with its final name must be complete."""

    def __init__(self, folder):
        super().__init__(daemon=True)
        self.folder = folder
        self.sizes = {}
        self._end = threading.Event()

    def run(self):
        while not self._end.wait(0.01):
            for path, size in self._files():
                self.sizes.setdefault(path, size)

    def stop(self):
        self._end.set()
        self.join()

    def _files(self):
        for folder, _, names in os.walk(self.folder):
            for name in names if "/." not in folder else []:
                path = pathlib.Path(folder, name)
                yield path, path.stat().st_size

    def check_complete(self):
        files = dict(self._files())
        check(files == self.sizes, f"Files were written in place: {self.sizes} became {files}")
        hidden = list(self.folder.rglob(".*"))
        check(not hidden, f"{hidden} is left behind")

    def check_decoding(self, rows, codecs):
        """Each can be decoded to its end, is as long as its source and holds the codec, if given."""
        for name in CLIPS:
            target = pathlib.Path(urllib.parse.unquote(rows[name]["target"]))
            decoding = subprocess.run(
                ["ffmpeg", "-v", "error", "-i", target, "-f", "null", "-"], capture_output=True
            )
            check(decoding.returncode == 0 and not decoding.stderr, f"{target}: {decoding.stderr}")
            probing = ["ffprobe", "-v", "error", "-show_streams", "-show_format", "-of", "json"]
            facts = json.loads(subprocess.check_output([*probing, target]))
            seconds = float(facts["format"]["duration"])
            check(abs(seconds - SECONDS) < 0.2, f"{target} takes {seconds} s")
            found = {stream["codec_name"] for stream in facts["streams"]}
            check(codecs.get(name, "") in {"", *found}, f"{target} holds {found}")
