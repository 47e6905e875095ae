#!/usr/bin/python3
r"""A long way through the window, by someone who reads nothing: real files, keys, mouse and kills.

Usage: desktop_journey.py VEXCONVERT

Runs beside a window manager on an X server and a session bus of its own:
tests/support/on-display.sh dbus-run-session \
    tests/host/window/desktop_journey.py build/dev/host/vexconvert
"""

import pathlib
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "support"))
from desktopuser import (  # noqa: E402 (found only now)
    announce_reader,
    check,
    described,
    press,
    run,
    wait_for,
)
from journeyfiles import CLIPS, Pace, Results, make_files  # noqa: E402
from programwindow import ProgramWindow  # noqa: E402


def start_window_manager():
    command = ["openbox", "--config-file", "/etc/xdg/openbox/rc.xml"]  # not the developer's own
    manager = subprocess.Popen(command, stderr=subprocess.DEVNULL)

    def is_ready():
        return subprocess.run(["xdotool", "get_desktop"], capture_output=True).returncode == 0

    check(wait_for(is_ready), "No window manager comes")
    return manager


def add_files(window, media):
    """Those of the command line are there; more come by the dialogs, and none comes twice."""
    window.row("film.mp4")
    window.row("song.mp3")
    window.see("alert: .*picture.jpg is a picture; add video or audio files")
    window.see("alert: (.|\n)*list.m3u is a playlist; add the files that it names instead")
    window.click("push button: Close")
    window.see_gone("alert: .*picture")

    press("ctrl+o")
    window.type_in_dialog("Add files", str(media / "film.mp4"))
    window.see("alert: Already in the list: film.mp4")
    window.see("label: Files: 2$")

    window.click("push button: Add folder")
    window.type_in_dialog("Add folder", str(media))
    window.see("alert: Already in the list: 2 files")
    window.see(f"label: Files: {len(CLIPS) + 1}$")
    window.expect_queue(
        lambda queue: set(queue) == {*CLIPS, "broken.mp4"}
        and all("formatCaption" in row for row in queue.values()),
        "The list isn't that of the files",
    )


def choose_folder(window, results):
    window.click("push button: Save to: ")
    window.type_in_dialog("Choose folder", str(results))
    window.see(f"push button: Save to: {results.name}")


def choose_in_picker(window, words):
    window.see("dialog: Format")
    run("xdotool", "type", words)
    window.see("text: Find format")
    press("Return")
    press("Return")
    window.see_gone("dialog: Format")


def choose_formats(window):
    """For all by the button, for one by its own, for one by a search; those two stay."""
    window.click("push button: Convert all to: ")
    choose_in_picker(window, "mkv")
    window.see("push button: Convert all to: MKV - Keep original")

    window.click(window.see("push button: Format: ", window.row("song.mp3")))
    choose_in_picker(window, "flac")
    window.see("push button: Format: FLAC - Keep original", window.row("song.mp3"))

    window.click(window.row("film.mp4"), across=0.3)
    press("ctrl+f")
    window.see("text: Find a preset")
    window.see("label: For the selected files: 1")
    run("xdotool", "type", "hevc 720")
    window.see("list item: .*HEVC")
    press("Return")
    window.see_gone("text: Find a preset")
    window.see("push button: Format: .*HEVC", window.row("film.mp4"))

    window.click("push button: Convert all to: ")
    choose_in_picker(window, "webm")
    window.see("push button: Convert all to: WEBM")
    window.see("push button: Format: FLAC - Keep original", window.row("song.mp3"))
    window.see("push button: Format: .*HEVC", window.row("film.mp4"))


def select_and_sort(window):
    first, second, third = list(window.queue())[:3]
    window.click(window.row(first), across=0.3)
    window.click(window.row(third), key="ctrl", across=0.3)
    window.see("label: 2 of ")
    check(not window.is_selected(second), "Ctrl selected the row between")
    window.click(window.row(first), across=0.3)
    window.click(window.row(third), key="shift", across=0.3)
    window.see("label: 3 of ")
    check(window.is_selected(second), "Shift didn't select the row between")

    before = window.queue()
    press("Delete")
    window.see("alert: Removed: 3 files")
    window.expect_queue(
        lambda queue: len(queue) == len(before) - 3, "Delete didn't remove the rows"
    )
    press("ctrl+z")
    window.expect_queue(
        lambda queue: list(queue.items()) == list(before.items()), "Ctrl+Z didn't bring them back"
    )

    press("ctrl+a")
    window.see(f"label: {len(before)} of {len(before)} selected")
    window.click("push button: Sort by")
    window.click("menu item: Name")
    window.expect_queue(
        lambda queue: list(queue) == sorted(before, key=str.casefold),
        "The list isn't sorted",
    )

    # The right button means the row under it, unless that is one of those that are selected.
    other, name = list(window.queue())[:2]
    window.click(window.row(other), across=0.3)
    window.click(window.row(name), button=3, across=0.3)
    window.click("menu item: Remove from the list")
    window.expect_queue(lambda queue: name not in queue, "The menu didn't remove the row")
    press("ctrl+z")
    window.expect_queue(lambda queue: list(queue)[1] == name, "The row isn't back in its place")


def statuses(queue):
    return [row["status"] for row in queue.values()]


def convert_and_pause(window, pace):
    """While all stands still, rows that wait can be removed and moved."""
    pace.slow()
    window.click("push button: Convert All")
    check(wait_for(lambda: " of " in window.title()), "The title doesn't tell how far it is")
    check(wait_for(pace.states), "Nothing is converted")
    window.click("push button: Pause")
    check(wait_for(lambda: "Paused" in window.title()), "The title doesn't tell of the pause")
    check(wait_for(lambda: set(pace.states()) == {"T"}), f"ffmpeg goes on: {pace.states()}")

    running = len(pace.states())
    window.expect_queue(
        lambda queue: statuses(queue).count("interrupted") >= running,
        "It isn't kept what is running",
    )
    waiting = [name for name, row in window.queue().items() if row["status"] == "unconverted"]
    moved, above = waiting[1], waiting[0]
    window.drag(moved, above)
    window.expect_queue(
        lambda queue: list(queue).index(moved) < list(queue).index(above), "The row isn't moved"
    )
    window.click(window.see("push button: Remove from the list", window.row(above)))
    window.expect_queue(lambda queue: above not in queue, "The row isn't removed")
    window.click("push button: Undo")
    window.expect_queue(lambda queue: above in queue, "The row isn't brought back")

    window.click("push button: Resume")
    check(wait_for(lambda: "Paused" not in window.title()), "The title still tells of the pause")


def expect_list(window, before):
    window.see(f"label: Files: {len(before)}")
    check(window.queue() == before, f"The list was {before} and is {window.queue()}")


def kill_and_go_on(window, pace):
    """The next start has the list as it was, with the formats and results."""
    window.expect_queue(
        lambda queue: {"converted", "interrupted"} <= set(statuses(queue)), "Nothing is converted"
    )
    window.kill()
    before = window.queue()
    check(wait_for(lambda: not pace.states()), "ffmpeg outlives the program")

    window.start()
    window.see("alert: VexConvert was closed while it converted; ")
    expect_list(window, before)
    interrupted = next(name for name, row in before.items() if row["status"] == "interrupted")
    row = window.row(interrupted)
    check(wait_for(lambda: "Interrupted" in described(row)), f"{described(row)} is not marked")
    window.click("push button: Convert All")
    window.expect_queue(
        lambda queue: statuses(queue).count("converted") > statuses(before).count("converted"),
        "The conversions don't go on",
    )


def close_while_converting(window, pace):
    """The window manager's way to close it asks first."""
    press("alt+F4")
    window.see("alert: Stop converting")
    press("Return")
    window.see_gone("alert: Stop converting")
    check(" of " in window.title() and pace.states(), "It stopped converting")
    press("alt+F4")
    window.click("push button: Stop and close")
    window.expect_end()
    check(not pace.states(), "ffmpeg outlives the program")


def finish(window, pace):
    before = window.queue()
    pace.full()
    window.start()
    expect_list(window, before)
    window.click("push button: Convert All")
    window.see("alert: Files converted: .*failed: 1")
    window.expect_queue(
        lambda queue: statuses(queue).count("converted") == len(CLIPS)
        and queue["broken.mp4"]["status"] == "failed",
        "Not all is converted",
    )


def restart(window):
    press("ctrl+q")
    window.expect_end()
    window.start()


def keep_settings_and_place(window):
    run("xdotool", "windowmove", window.id, "150", "120", "windowsize", window.id, "900", "620")
    check(wait_for(lambda: window.geometry()[2:] == (900, 620)), "The window can't be resized")
    press("ctrl+comma")
    window.click("combo box: Theme")
    window.click("list item: Dark")
    press("Escape")
    window.see_gone("dialog: Preferences")
    place = window.geometry()
    restart(window)
    check(window.geometry() == place, f"The window was at {place} and is at {window.geometry()}")
    press("ctrl+comma")
    theme = window.see("combo box: Theme").get_description()
    check(theme == "Dark", f"The theme is {theme}")
    press("Escape")
    window.see_gone("dialog: Preferences")


def hide_and_find(window, late):
    """A second start brings back the window that there is, with its file."""
    run("xdotool", "windowminimize", window.id)
    check(wait_for(lambda: not window.is_visible()), "The window isn't minimised")
    second = window.run(late)
    check(wait_for(lambda: second.poll() is not None), "The second start doesn't end")
    check(second.returncode == 0, f"The second start ends with {second.returncode}")
    check(wait_for(window.is_visible), "The window stays minimised")
    window.expect_queue(lambda queue: late.name in queue, "Its file isn't added")


def maximise(window):
    place = window.geometry()
    window.click_title_twice()
    check(wait_for(lambda: window.geometry()[2] > 1200), "The window isn't maximised")
    restart(window)
    check(wait_for(lambda: window.geometry()[2] > 1200), "The window isn't maximised any more")
    window.click_title_twice()
    check(
        wait_for(lambda: window.geometry() == place),
        f"The window was at {place} and is at {window.geometry()}",
    )
    press("ctrl+q")
    window.expect_end()


def main():
    with tempfile.TemporaryDirectory() as name:
        work = pathlib.Path(name)
        for folder in ("media", "results", "tmp"):
            (work / folder).mkdir()
        media = work / "media"
        make_files(media)
        pace = Pace(work)
        results = Results(work / "results")
        results.start()
        announce_reader()
        manager = start_window_manager()
        window = ProgramWindow(sys.argv[1], work)
        try:
            first = ("film.mp4", "song.mp3", "picture.jpg", "list.m3u")
            window.start(*[media / name for name in first])
            add_files(window, media)
            choose_folder(window, results.folder)
            choose_formats(window)
            select_and_sort(window)
            convert_and_pause(window, pace)
            kill_and_go_on(window, pace)
            close_while_converting(window, pace)
            finish(window, pace)
            results.stop()
            results.check_decoding(window.queue(), {"film.mp4": "hevc", "song.mp3": "flac"})
            results.check_complete()
            keep_settings_and_place(window)
            hide_and_find(window, shutil.copy(media / "film.mp4", work / "late.mp4"))
            maximise(window)
        finally:
            window.kill()
            manager.kill()
            results.stop()


if __name__ == "__main__":
    main()
