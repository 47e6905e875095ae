#!/usr/bin/python3
r"""Two files converted by keyboard alone, followed by what assistive tools are told.

Usage: screenreader_journey.py VEXCONVERT

Runs on an X server and a session bus of its own:
tests/support/on-display.sh dbus-run-session \
    tests/host/window/screenreader_journey.py build/dev/host/vexconvert
"""

import os
import pathlib
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "support"))
from desktopuser import (  # noqa: E402 (found only now)
    Atspi,
    announce_reader,
    check,
    described,
    press,
    run,
    wait_for,
)


class Reader:
    """Hears what a screen reader hears: where the focus goes, and how what has it is called."""

    def __init__(self):
        self.focus = None
        self.shown = []
        self._listeners = [
            self._listen("object:state-changed:focused", self._focus_changed),
            self._listen("object:state-changed:showing", self._shown),
        ]

    def _listen(self, event_type, callback):
        listener = Atspi.EventListener.new(callback)
        listener.register(event_type)
        return listener

    def _focus_changed(self, event):
        if event.detail1:
            self.focus = event.source

    def _shown(self, event):
        if event.detail1:
            self.shown.append(described(event.source))

    def focused(self):
        return "nothing" if self.focus is None else described(self.focus)

    def has(self, state):
        self.focus.clear_cache()
        return self.focus.get_state_set().contains(state)


def expect(reader, words):
    check(
        wait_for(lambda: reader.focused().startswith(words)),
        f'The focus should be on "{words}", and is on "{reader.focused()}"',
    )


def expect_shown(reader, words):
    check(
        wait_for(lambda: any(shown.startswith(words) for shown in reader.shown)),
        f'"{words}" should have been shown, after {reader.shown[-5:]}',
    )


def go_to(reader, words):
    """Tab, until the focus is on what starts with the words."""
    passed = []
    while not reader.focused().startswith(words):
        before = reader.focus
        press("Tab")
        wait_for(lambda: reader.focus is not before)
        passed.append(reader.focused())
        check(len(passed) < 40, f'Tab never comes to "{words}", only to {passed}')


def make_clips(folder):
    sine = ["-f", "lavfi", "-i", "sine=duration=2"]
    picture = ["-f", "lavfi", "-i", "testsrc2=duration=2:size=320x240"]
    for arguments, name in ((sine, "song.wav"), (picture + sine, "film.mkv")):
        subprocess.run(["ffmpeg", "-v", "error", *arguments, folder / name], check=True)


def convert_two_files(reader):
    expect_shown(reader, "list item: song.wav")
    expect_shown(reader, "list item: film.mkv")
    go_to(reader, "page tab: Converter")
    check(reader.has(Atspi.StateType.SELECTED), "The page that is shown isn't said to be selected")

    # The picker: a letter starts a search, Enter chooses.
    go_to(reader, "list item: song.wav")
    go_to(reader, "push button: Format: MP3")
    press("Return")
    expect(reader, "dialog: Format")
    go_to(reader, "page tab: Audio")
    for letter in "flac":
        press(letter)
    expect(reader, "text: Find format")
    press("Return")
    expect(reader, "list item: Keep original")
    press("Return")
    expect(reader, "push button: Format: FLAC")

    # The dialog of a preset's settings: three qualities, one of them checked.
    press("Return")
    expect(reader, "dialog: Format")
    press("Escape")
    expect(reader, "push button: Format: FLAC")

    go_to(reader, "push button: Convert All")
    press("space")
    press("Tab")
    go_to(reader, "list item: song.wav")
    expect_in_name(reader, "% smaller")
    expect_shown(reader, "alert: Files converted: 2")

    go_to(reader, "page tab: Converter")
    press("Right")
    expect(reader, "page tab: Editor")
    check(reader.has(Atspi.StateType.SELECTED), "The page changed, and isn't said to be selected")


def expect_in_name(reader, words):
    check(
        wait_for(lambda: words in reader.focused()),
        f'"{words}" should be told of "{reader.focused()}"',
    )


def main():
    with tempfile.TemporaryDirectory() as name:
        work = pathlib.Path(name)
        make_clips(work)
        announce_reader()
        reader = Reader()
        program = subprocess.Popen(
            [sys.argv[1], "--config", work / "config", work / "song.wav", work / "film.mkv"],
            env={**os.environ, "QT_QPA_PLATFORM": "xcb"},
        )
        try:
            run(
                "xdotool",
                "search",
                "--sync",
                "--onlyvisible",
                "--name",
                "^VexConvert$",
                "windowfocus",
            )
            convert_two_files(reader)
            check((work / "song.flac").exists(), "There is no song.flac")
            press("ctrl+q")
            check(wait_for(lambda: program.poll() is not None), "Ctrl+Q doesn't end the program")
        finally:
            program.kill()


if __name__ == "__main__":
    main()
