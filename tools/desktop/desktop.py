"""A desktop for one program: a virtual display with a window manager, a private session bus with the
accessibility bus on it, and an empty home."""
import os
import shutil
import subprocess
import tempfile
from pathlib import Path

import gi

from . import children, picture
from .waiting import eventually

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

HOME_FOLDERS = {
    "XDG_DATA_HOME": "data",
    "XDG_CONFIG_HOME": "config",
    "XDG_CACHE_HOME": "cache",
    "XDG_STATE_HOME": "state",
    "XDG_RUNTIME_DIR": "runtime",
    "TMPDIR": "tmp",
}
PASSED_ON = ("PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS", "QT_QUICK_BACKEND",
             "QT_XCB_GL_INTEGRATION")


class Desktop:
    """Use as a context manager; everything is gone afterwards. `environment` is what a program
    started on the desktop gets; `bus` and `accessibility_bus` are open connections."""

    def __init__(self, width=1280, height=1000, **environment):
        self._size = (width, height)
        self._extra = environment
        self._processes = []

    def __enter__(self):
        self.home = Path(tempfile.mkdtemp(prefix="quillmere-desktop-"))
        try:
            self.environment = self._make_environment()
            self._start_display()
            self.bus = self._start_bus()
            self._processes.append(self._start(["openbox"], env=self.environment))
            self.accessibility_bus = self._connect(self._accessibility_address())
            self._await_window_manager()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for process in reversed(self._processes):
            children.stop(process)
        shutil.rmtree(self.home, ignore_errors=True)

    def screen(self):
        return picture.read_screen(self.home / "Xvfb_screen0")

    def _make_environment(self):
        environment = {name: os.environ[name] for name in PASSED_ON if name in os.environ}
        environment |= {
            "HOME": str(self.home),
            "LC_ALL": "C.UTF-8",
            "TZ": "UTC",
            "GSETTINGS_BACKEND": "memory",
            "LIBGL_ALWAYS_SOFTWARE": "1",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "QT_QPA_PLATFORM": "xcb",
        }
        for name, folder in HOME_FOLDERS.items():
            (self.home / folder).mkdir(mode=0o700)
            environment[name] = str(self.home / folder)
        return environment | self._extra

    def _start(self, words, **options):
        with open(self.home / "desktop.log", "ab") as log:
            return children.start(words, stdin=subprocess.DEVNULL, stdout=log, stderr=log, **options)

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

    def _start_bus(self):
        mine, theirs = os.pipe()
        words = ["dbus-daemon", "--session", "--nofork", "--nopidfile", f"--print-address={theirs}",
                 f"--address=unix:dir={self.home / 'runtime'}"]
        self._processes.append(self._start(words, env=self.environment, pass_fds=[theirs]))
        os.close(theirs)
        with os.fdopen(mine) as answer:
            address = answer.readline().strip()
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        return self._connect(address)

    @staticmethod
    def _connect(address):
        flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
                 | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        return Gio.DBusConnection.new_for_address_sync(address, flags, None, None)

    def _accessibility_address(self):
        answer = self.bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress",
                                    None, GLib.VariantType("(s)"), Gio.DBusCallFlags.NONE, -1, None)
        return answer.unpack()[0]

    def _await_window_manager(self):
        def managed():
            return self._start(["xdotool", "get_num_desktops"], env=self.environment).wait() == 0

        eventually(managed, "a window manager runs")
