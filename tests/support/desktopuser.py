"""Keys, mouse and patience of a user of a program on a display, and what assistive tools are told.

Needs an X server and a session bus: tests/support/on-display.sh dbus-run-session TEST
"""

import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402 (the version has to be set first)

PATIENCE = 180


def wait_for(condition):
    """What it gives as soon as that is true; false when it never is. Events are handled meanwhile."""
    end = time.monotonic() + PATIENCE
    while not (value := value_of(condition)) and time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.005)
    return value


def value_of(condition):
    """What it gives; false when what it looks at has gone meanwhile."""
    try:
        return condition()
    except GLib.GError:
        return False


def check(is_right, words):
    if not is_right:
        sys.exit(words)


def run(*command):
    """Runs a command while events are handled: the program waits for its reader with each key."""
    process = subprocess.Popen(command, stdout=subprocess.PIPE, text=True)
    check(
        wait_for(lambda: process.poll() is not None) and process.returncode == 0,
        f"{' '.join(command)} failed",
    )
    return process.stdout.read()


def press(*keys):
    run("xdotool", "key", *keys)


def described(accessible):
    """The role and the name that it has now; "nothing" when it has gone meanwhile."""
    try:
        accessible.clear_cache()
        return f"{accessible.get_role_name()}: {accessible.get_name()}"
    except GLib.GError:
        return "nothing"


def announce_reader():
    """Says that a screen reader is running, as one does: programs stay silent for anything less."""
    session = Gio.bus_get_sync(Gio.BusType.SESSION)
    is_running = ("org.a11y.Status", "ScreenReaderEnabled", GLib.Variant("b", True))
    session.call_sync(
        "org.a11y.Bus",
        "/org/a11y/bus",
        "org.freedesktop.DBus.Properties",
        "Set",
        GLib.Variant("(ssv)", is_running),
        None,
        Gio.DBusCallFlags.NONE,
        -1,
    )
