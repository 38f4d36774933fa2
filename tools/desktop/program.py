"""A program running on a desktop."""
import os
import subprocess
from pathlib import Path

from . import children, picture
from .accessible import Gone, program_of
from .waiting import TookTooLong, eventually


class Program:
    """One start of the program at `path`. Its output goes to `log`."""

    def __init__(self, desktop, path, *arguments, log=None, **environment):
        self.desktop = desktop
        self.log = log or desktop.home / "program.log"
        with open(self.log, "ab") as output:
            self.process = children.start(
                [str(path), *arguments], env=desktop.environment | environment,
                stdin=subprocess.DEVNULL, stdout=output, stderr=output)

    def root(self):
        """The top of the accessibility tree; waits for the program to show itself."""

        def look():
            if self.process.poll() is not None:
                raise RuntimeError(f"the program ended with {self.process.returncode}:\n"
                                   + self.log.read_text(errors="replace"))
            return program_of(self.desktop.accessibility_bus, self.process.pid)

        return eventually(look, "the program is on the accessibility bus")

    def find(self, role=None, name=None):
        return self.root().find(role, name)

    def await_element(self, role=None, name=None, limit=None):
        root = self.root()
        return self._eventually(lambda: root.find(role, name), f"a {role} named {name!r}", limit)

    def await_absence(self, role=None, name=None, limit=None):
        root = self.root()
        self._eventually(lambda: root.find(role, name) is None, f"no {role} named {name!r}", limit)

    def await_true(self, check, what, limit=None):
        """Waits for `check`, for which an object that is gone is the same as false."""

        def careful():
            try:
                return check()
            except Gone:
                return False

        return self._eventually(careful, what, limit)

    def reach(self, role, name):
        """Gives an element the keyboard, which brings it into sight where its page scrolls."""

        def look():
            for found in self.root().descendants():
                if (found.role, found.name) == (role, name):
                    found.focus()
                    return found if {"focused", "showing"} <= found.states else None
            return None

        return self.await_true(look, f"a {role} named {name!r} can be reached")

    def press(self, role, name):
        self.await_element(role, name).press()

    def focused(self):
        """The object that has the keyboard, or None."""
        found = None
        try:
            for candidate in self.root().descendants():
                if "focused" in candidate.states:
                    found = candidate
        except Gone:
            return None
        return found

    def keys(self, *names):
        """Presses keys as a person does; the window that is active gets them."""
        self._xdotool("key", "--clearmodifiers", "--delay", "0", *names)

    def hold(self, name):
        """Keeps a key down; the display repeats it until `release`."""
        self._xdotool("keydown", name)

    def release(self, name):
        self._xdotool("keyup", name)

    def type(self, text):
        self._xdotool("type", "--clearmodifiers", "--delay", "0", text)

    def click(self, element):
        left, top, width, height = element.extents
        self._xdotool("mousemove", left + width // 2, top + height // 2, "click", "1")

    def pull(self, element):
        """Takes an element with the pointer and pulls it aside, until `let_go`."""
        left, top, width, height = element.extents
        x, y = left + width // 2, top + height // 2
        self._xdotool("mousemove", x, y, "mousedown", 1)
        for distance in range(10, 60, 10):
            self._xdotool("mousemove", x + distance, y + distance)

    def let_go(self):
        self._xdotool("mouseup", 1)

    def is_active(self):
        """Whether the window is shown and has the keyboard."""
        return any("active" in window.states for window in self.root().children)

    def await_active(self):
        self.await_true(self.is_active, "the window is active")

    def minimize(self):
        self._xdotool("windowminimize", "--sync", self.window())

    def windows(self, other_than=None):
        """The X11 identifiers of the windows that show; waits for one."""

        def look():
            answer = self._xdotool("search", "--onlyvisible", "--pid", self.process.pid, check=False)
            return [window for window in answer.split() if window != other_than]

        return eventually(look, "the program has a window")

    def window(self):
        """The X11 identifier of the main window, or of one of several."""
        return self.windows()[-1]

    def resize(self, width, height):
        self._xdotool("windowsize", "--sync", self.window(), width, height)

    def move(self, left, top):
        self._xdotool("windowmove", "--sync", self.window(), left, top)

    def toggle_maximized(self):
        """As a double click on the title does."""
        left, top, width, _ = before = self.geometry()
        self._xdotool("mousemove", left + width // 2, top - 8, "click", "--repeat", 2, 1)
        self.await_true(lambda: self.geometry() != before, "the window is maximized, or no longer")

    def geometry(self, window=None):
        """Left, top, width and height of a window, the main one unless said, in pixels."""
        answer = subprocess.run(["xwininfo", "-id", window or self.window()], env=self.desktop.environment,
                                stdout=subprocess.PIPE, text=True, check=True, timeout=60).stdout
        values = dict(line.strip().split(":", 1) for line in answer.splitlines() if ":" in line)
        return tuple(int(values[key]) for key in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))

    def picture(self, window=None):
        """A window once it has come to rest, the main one unless said, without the pointer over
        it."""
        self._xdotool("mousemove", 0, 0)
        return picture.settled(lambda: picture.cut(self.desktop.screen(), *self.geometry(window)))

    def await_exit(self, limit=60):
        """The exit status."""
        return self.process.wait(limit)

    def kill(self):
        """Ends it at once, as a crash or a power cut would."""
        self.process.kill()
        self.process.wait()

    def _leave_picture(self):
        """What a person would have seen, for whoever looks into a failure."""
        if folder := os.environ.get("QUILLMERE_PICTURES"):
            path = Path(folder) / f"failure-{os.getpid()}-{self.process.pid}.png"
            picture.write_png(self.desktop.screen(), path)

    def _xdotool(self, *words, check=True):
        answer = subprocess.run(["xdotool", *map(str, words)], env=self.desktop.environment,
                                stdout=subprocess.PIPE, text=True, check=check, timeout=60)
        return answer.stdout

    def _eventually(self, check, what, limit):
        try:
            return eventually(check, what, **({"limit": limit} if limit else {}))
        except TookTooLong as problem:
            self._leave_picture()
            output = self.log.read_text(errors="replace")[-3000:]
            raise TookTooLong(f"{problem}\n{self.root().describe()}\n{output}") from None
