"""A desktop for one program: a session with a virtual display and a window manager, and the
accessibility bus."""
import os

import gi

from . import picture
from .session import Session
from .waiting import eventually

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402


class Desktop(Session):
    """A session on whose display programs show themselves; `accessibility_bus` is a connection to
    where they tell what they show."""

    def __init__(self, width=1280, height=1000, **environment):
        super().__init__(**environment)
        self._size = (width, height)

    def connect(self):
        """Another connection to the session bus, as a program of its own has one."""
        return self._connect(self.environment["DBUS_SESSION_BUS_ADDRESS"])

    def screen(self):
        return picture.read_screen(self.home / "Xvfb_screen0")

    def _open(self):
        self._start_display()
        super()._open()
        self._processes.append(self._start(["openbox"], env=self.environment))
        self.accessibility_bus = self._connect(self._accessibility_address())
        self._await_window_manager()

    def _start_display(self):
        mine, theirs = os.pipe()
        width, height = self._size
        words = ["Xvfb", "-displayfd", str(theirs), "-screen", "0", f"{width}x{height}x24",
                 "-fbdir", str(self.home), "-nolisten", "tcp", "-noreset", "-dpi", "96"]
        self._processes.append(self._start(words, pass_fds=[theirs]))
        os.close(theirs)
        with os.fdopen(mine) as answer:
            number = answer.readline().strip()
        if not number:
            raise RuntimeError("no virtual display: " + (self.home / "desktop.log").read_text())
        self.environment["DISPLAY"] = f":{number}"

    def _accessibility_address(self):
        answer = self.bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress",
                                    None, GLib.VariantType("(s)"), Gio.DBusCallFlags.NONE, -1, None)
        return answer.unpack()[0]

    def _await_window_manager(self):
        def managed():
            return self._start(["xdotool", "get_num_desktops"], env=self.environment).wait() == 0

        eventually(managed, "a window manager runs")
