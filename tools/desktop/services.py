"""A program that a session's bus starts when it is called."""
import os
import signal

import gi

from .waiting import eventually

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

LIMIT_MILLISECONDS = 60_000
BUS = ("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus")


class Service:
    """`interface` at `path` of the program, which the bus knows by `name` from now on; without a
    program, of the one that is installed."""

    def __init__(self, session, name, path, interface, program=None):
        self._bus = session.bus
        self._target = (name, path, interface)
        self.name = name
        if program:
            text = f"[D-BUS Service]\nName={name}\nExec={program}\n"
            (session.services / f"{name}.service").write_text(text)
            self._ask(BUS, "ReloadConfig")

    def call(self, method, signature, *arguments):
        """The answer as a tuple; errors are `GLib.Error`."""
        return self._ask(self._target, method, signature, *arguments)

    def is_running(self):
        return self._ask(BUS, "NameHasOwner", "(s)", self.name)[0]

    def process_id(self):
        return self._ask(BUS, "GetConnectionUnixProcessID", "(s)", self.name)[0]

    def end(self):
        """Ends it at once, as a crash would, if it runs."""
        if self.is_running():
            os.kill(self.process_id(), signal.SIGKILL)
            eventually(lambda: not self.is_running(), f"{self.name} is gone")

    def _ask(self, target, method, signature="()", *arguments):
        answer = self._bus.call_sync(*target, method, GLib.Variant(signature, arguments), None,
                                     Gio.DBusCallFlags.NONE, LIMIT_MILLISECONDS, None)
        return answer.unpack()
