"""A session without a screen: a private session bus, and an empty home."""
import os
import shutil
import subprocess
import tempfile
from pathlib import Path

import gi

from . import children

gi.require_version("Gio", "2.0")
from gi.repository import Gio  # noqa: E402

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


class Session:
    """Use as a context manager; everything is gone afterwards. `environment` is what a program
    started in the session gets; `bus` is an open connection."""

    def __init__(self, **environment):
        self._extra = environment
        self._processes = []

    def __enter__(self):
        self.home = Path(tempfile.mkdtemp(prefix="quillmere-desktop-"))
        try:
            self.environment = self._make_environment()
            self._open()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for process in reversed(self._processes):
            children.stop(process)
        shutil.rmtree(self.home, ignore_errors=True)

    def connect(self):
        """A connection of its own to the session bus."""
        return self._connect(self.environment["DBUS_SESSION_BUS_ADDRESS"])

    def crash_bus(self):
        self._bus_daemon.kill()

    def _open(self):
        self.services.mkdir(parents=True, exist_ok=True)
        self.bus = self._start_bus()

    @property
    def services(self):
        """The folder that tells the bus which programs it may start."""
        return self.home / "runtime/dbus-1/services"

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

    def _start_bus(self):
        mine, theirs = os.pipe()
        words = ["dbus-daemon", "--session", "--nofork", "--nopidfile", f"--print-address={theirs}",
                 f"--address=unix:dir={self.home / 'runtime'}"]
        self._bus_daemon = self._start(words, env=self.environment, pass_fds=[theirs])
        self._processes.append(self._bus_daemon)
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
