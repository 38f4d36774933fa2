"""The snapshot for widgets, as other programs see it: the file, the signal, and a bar's balance."""
import base64
import json
import signal
import subprocess
import time
import unittest

from story import ROOT, Story

from desktop import children
from desktop.waiting import eventually

from gi.repository import Gio, GLib

BAR = ROOT / "packaging/waybar/quillmere-balance"
SINCE_2001 = 978307200
DAY = 86400
# Longer than a snapshot waits for the end of a burst, and than two are apart.
QUIET_SECONDS = 1


class Watch:
    """What a program of its own learns of the snapshots, told by `look`."""

    def __init__(self, desktop):
        self.file = desktop.home / "config/group.dev.vantor.quillmere/preferences.json"
        self.snapshots = []
        self.signals = 0
        self._seen = self._last = None
        desktop.bus.signal_subscribe(
            None, "dev.vantor.quillmere.Widgets", "ReloadAllTimelines",
            "/dev/vantor/quillmere/Widgets", None, Gio.DBusSignalFlags.NONE, self._count)

    def look(self):
        while GLib.MainContext.default().iteration(False):
            pass
        if self.file.exists() and (seen := self._version()) != self._seen:
            self._seen, self._last = seen, time.monotonic()
            value = json.loads(self.file.read_bytes())["widgetSnapshot"]["data"]
            self.snapshots.append(json.loads(base64.b64decode(value)))

    def await_minutes(self, minutes):
        def check():
            self.look()
            return self.snapshots and self.snapshots[-1]["balanceSeconds"] == minutes * 60

        eventually(check, f"a snapshot of {minutes} minutes")

    def await_quiet(self):
        """Waits until nothing is under way any more."""
        def check():
            self.look()
            return self._last and time.monotonic() - self._last > QUIET_SECONDS

        eventually(check, "no more snapshots")

    def _version(self):
        status = self.file.stat()
        return status.st_ino, status.st_mtime_ns

    def _count(self, *_):
        self.signals += 1


class Widget(Story):
    def test_one_snapshot_for_a_burst_and_none_in_the_background(self):
        watch = Watch(self.desktop)
        program = self.start_on_dashboard()
        program.await_active()
        watch.await_quiet()
        before, told = len(watch.snapshots), watch.signals

        program.process.send_signal(signal.SIGSTOP)
        for minutes in (10, 20, 30):
            self.ledger("add", minutes)
        program.process.send_signal(signal.SIGCONT)
        watch.await_minutes(60)
        watch.await_quiet()
        self.assertEqual(len(watch.snapshots), before + 1)
        self.assertEqual(watch.snapshots[-1]["todayWorkedSeconds"], 3600)

        program.minimize()
        program.await_true(lambda: not program.is_active(), "the window is out of the way")
        self.ledger("add", 30)
        program.await_balance("plus 1 hours, 30 minutes")
        self.assertEqual(self.start().process.wait(60), 0)
        program.await_active()
        watch.await_minutes(90)
        watch.await_quiet()
        self.assertEqual(len(watch.snapshots), before + 2)
        self.assertEqual(watch.signals, told + 2)

    def test_a_bar_shows_the_balance(self):
        bar = children.start([BAR, "--follow"], env=self.desktop.environment, text=True,
                             stdout=subprocess.PIPE)
        self.addCleanup(children.stop, bar)
        self.addCleanup(bar.stdout.close)
        self.assertEqual(json.loads(bar.stdout.readline())["class"], "unconfigured")
        watch = Watch(self.desktop)
        program = self.start_on_dashboard()
        program.await_active()
        watch.await_quiet()
        program.take("1.5")
        watch.await_minutes(-90)
        lines = iter(bar.stdout.readline, "")
        shown = next(line for line in map(json.loads, lines) if line["class"] == "negative")
        self.assertEqual((shown["text"], shown["tooltip"]), ("−1:30", "Today +0:00 −1:30"))

    def test_a_bar_shows_what_holds_at_the_moment(self):
        now = time.time() - SINCE_2001
        full = {"balanceSeconds": 5400, "todayWorkedSeconds": 600, "todayExpectedSeconds": 60,
                "updatedAt": now}
        rows = [
            ("of today", full, "+1:30", "Today +0:10 −0:01"),
            ("of yesterday", full | {"updatedAt": now - DAY}, "+1:30", "Today +0:00 −0:00"),
            ("before setup", full | {"isConfigured": False}, "–", None),
            ("without a balance", {"updatedAt": now}, "–", None),
            ("no object", [], "–", None),
        ]
        folder = self.desktop.home / "config/dev.vantor.quillmere"
        folder.mkdir()
        for name, snapshot, text, tooltip in rows:
            with self.subTest(name):
                data = base64.b64encode(json.dumps(snapshot).encode()).decode()
                (folder / "preferences.json").write_text(
                    json.dumps({"widgetSnapshot": {"data": data}}))
                line = json.loads(subprocess.run([BAR], env=self.desktop.environment, check=True,
                                                 capture_output=True, timeout=60).stdout)
                self.assertEqual(line["text"], text)
                if tooltip:
                    self.assertEqual(line["tooltip"], tooltip)


if __name__ == "__main__":
    unittest.main()
