"""A running vexconvert as its user sees and handles it, and what it keeps on disk."""

import json
import os
import pathlib
import re
import subprocess
import sys
import urllib.parse

from desktopuser import Atspi, GLib, check, described, press, run, wait_for


class ProgramWindow:
    """The window of one start after the other; all folders of the program are below "work"."""

    def __init__(self, program, work):
        self.program = program
        self.work = work
        self.process = None
        self.id = None
        # Programs show themselves only to those who listen.
        self._listener = Atspi.EventListener.new(lambda event: None)
        self._listener.register("object:children-changed")

    def run(self, *files):
        """Starts the program with the files; it may hand them over to the window that there is."""
        environment = {
            **os.environ,
            "HOME": str(self.work),
            "PATH": f"{self.work / 'bin'}:{os.environ['PATH']}",
            "QT_QPA_PLATFORM": "xcb",
            "TMPDIR": str(self.work / "tmp"),
        }
        arguments = ["--config", self.work / "config", "--language", "en", *files]
        return subprocess.Popen([self.program, *arguments], env=environment)

    def start(self, *files):
        """Opens the window, with the files added to it."""
        self.process = self.run(*files)
        check(wait_for(self._is_shown), "No window is shown")

    def _windows(self, title, *options):
        command = ["xdotool", "search", "--all", "--pid", str(self.process.pid), *options]
        found = subprocess.run([*command, "--name", title], capture_output=True, text=True)
        return found.stdout.split()

    def is_visible(self):
        return self.id in self._windows(r"VexConvert$", "--onlyvisible")

    def _is_shown(self):
        check(self.process.poll() is None, "The program has ended")
        self.id = next(iter(self._windows(r"VexConvert$", "--onlyvisible")), None)
        return self.id is not None and self._top() is not None

    def title(self):
        return run("xdotool", "getwindowname", self.id).strip()

    def geometry(self):
        """x, y, width and height, in the display's pixels."""
        lines = run("xdotool", "getwindowgeometry", "--shell", self.id)
        values = dict(line.split("=") for line in lines.split())
        return tuple(int(values[key]) for key in ("X", "Y", "WIDTH", "HEIGHT"))

    def kill(self):
        if self.process is not None:
            self.process.kill()
            self.process.wait()

    def expect_end(self):
        check(wait_for(lambda: self.process.poll() is not None), "The program doesn't end")
        check(self.process.returncode == 0, f"The program ends with {self.process.returncode}")

    # What is seen, as the tree of what assistive tools are told.

    def _top(self):
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        for number in range(desktop.get_child_count()):
            program = desktop.get_child_at_index(number)
            if program and program.get_process_id() == self.process.pid:
                return program
        return None

    def _walk(self, item):
        try:
            item.clear_cache()
            for number in range(item.get_child_count()):
                child = item.get_child_at_index(number)
                if child.get_state_set().contains(Atspi.StateType.SHOWING):
                    yield child
                    yield from self._walk(child)
        except (GLib.GError, AttributeError):
            return  # it has gone meanwhile

    def find(self, words, within=None):
        """The first shown item whose role and name match, such as "push button: Stop"."""
        top = within or self._top()
        for item in self._walk(top) if top else ():
            if re.match(words, described(item)):
                return item
        return None

    def see(self, words, within=None):
        """What find() gives, as soon as there is such an item."""
        item = wait_for(lambda: self.find(words, within))
        if not item:
            shown = [described(item) for item in self._walk(self._top())]
            sys.exit(f'There is no "{words}", but {shown}')
        return item

    def see_gone(self, words):
        check(wait_for(lambda: self.find(words) is None), f'There is still "{words}"')

    def row(self, name):
        """The row of the file, which the mouse wheel brings into view where it isn't."""
        row = wait_for(lambda: self._scroll_to(name))
        check(row, f"There is no row {name}")
        return row

    def _scroll_to(self, name):
        """The row; None after a step towards it."""
        files = self.see("list: Files")
        view = files.get_extents(Atspi.CoordType.SCREEN)
        rows = [item for item in self._walk(files) if item.get_role() == Atspi.Role.LIST_ITEM]
        order = list(self.queue())
        row = next((row for row in rows if row.get_name().startswith(f"{name}, ")), None)
        if row is None:
            # A row that is far away isn't there; nor is it on disk at once.
            shown = rows[0].get_name() if rows else ""
            first = next((i for i, one in enumerate(order) if shown.startswith(f"{one}, ")), 0)
            up = name in order and order.index(name) < first
        else:
            place = row.get_extents(Atspi.CoordType.SCREEN)
            up = place.y < view.y
            if not up and place.y + place.height <= view.y + view.height:
                return row
        self.click(files, button=4 if up else 5)
        return None

    def is_selected(self, name):
        row = self.row(name)
        return row.get_state_set().contains(Atspi.StateType.SELECTED)

    # What is done.

    def _point(self, item, across, down):
        """A place on the display, at these shares of the item's width and height."""
        place = item.get_extents(Atspi.CoordType.SCREEN)
        # Assistive tools are told places before they are scaled.
        frame = self.see("frame: .*VexConvert").get_extents(Atspi.CoordType.SCREEN)
        scale = self.geometry()[2] / frame.width
        x = (place.x + place.width * across) * scale
        y = (place.y + place.height * down) * scale
        return str(round(x)), str(round(y))

    def _point_at_rest(self, item, across, down=0.5):
        points = []

        def rests():
            points.append(self._point(item, across, down))
            return len(points) > 1 and points[-1] == points[-2]

        check(wait_for(rests), f'"{described(item)}" never stands still')
        return points[-1]

    def click(self, item, button=1, key=None, across=0.5):
        """A click on the item, at a share of its width, with a key held."""
        if isinstance(item, str):
            item = self.see(item)
        x, y = self._point_at_rest(item, across)
        keys = ["keydown", key] if key else []
        release = ["keyup", key] if key else []
        run("xdotool", "mousemove", x, y, *keys, "click", str(button), *release)

    def drag(self, name, above):
        """Drags the row by its left edge, onto the upper part of the one that it is to be above."""
        self.row(above)
        x, y = self._point_at_rest(self.row(name), 0.005)
        _, to = self._point_at_rest(self.row(above), 0.005, 0.3)
        steps = []
        for share in (0.3, 0.6, 0.9, 1):
            step = round(int(y) + (int(to) - int(y)) * share)
            steps += ["mousemove", x, str(step), "sleep", "0.1"]
        run("xdotool", "mousemove", x, y, "mousedown", "1", *steps, "mouseup", "1")

    def click_title_twice(self):
        """Twice on what the window manager draws above the window."""
        x, y = self._point_at_rest(self.see("frame: .*VexConvert"), 0.5, 0)
        title = str(int(y) - 8)
        run("xdotool", "mousemove", x, title, "click", "--repeat", "2", "--delay", "50", "1")

    def type_in_dialog(self, title, text):
        """Types into the file dialog of this title, which has the focus by itself, and Return."""

        def has_focus():
            active = subprocess.run(
                ["xdotool", "getactivewindow", "getwindowname"], capture_output=True, text=True
            )
            return active.stdout.strip() == title

        check(wait_for(has_focus), f'No dialog "{title}" has the focus')
        run("xdotool", "type", text)
        press("Return")
        check(wait_for(lambda: not has_focus()), f'The dialog "{title}" stays')

    # What it keeps on disk.

    def queue(self):
        """The rows of the converter, by name; the last write may be half a second old."""
        kept = self.work / "config" / "queue.json"
        rows = json.loads(kept.read_text())["pages"]["converter"] if kept.exists() else []
        return {pathlib.Path(urllib.parse.unquote(row["source"])).name: row for row in rows}

    def expect_queue(self, is_right, words):
        """Waits for a list on disk for which this holds."""
        check(wait_for(lambda: is_right(self.queue())), f"{words}: {self.queue()}")
