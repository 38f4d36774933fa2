"""The window moves on to the new day by itself: at midnight, and when the zone changes."""
import shutil
import time
import unittest
from pathlib import Path

import private_mounts
from story import Story

DAY = 86400
SECONDS_BEFORE_MIDNIGHT = 30


def zone_near_midnight():
    """A zone, as POSIX writes it, in which midnight is close."""
    behind_utc = int(time.time() + SECONDS_BEFORE_MIDNIGHT) % DAY
    if behind_utc > DAY // 2:
        behind_utc -= DAY
    sign, seconds = ("-" if behind_utc < 0 else ""), abs(behind_utc)
    return f"<NEAR>{sign}{seconds // 3600:02}:{seconds // 60 % 60:02}:{seconds % 60:02}"


def zone_at_hour(hour):
    """A zone in which it is that hour of the day now. Names of these zones have the sign reversed."""
    ahead = (hour - time.gmtime().tm_hour) % 24
    return f"Etc/GMT-{ahead}" if ahead <= 14 else f"Etc/GMT+{24 - ahead}"


class NewDay(Story):
    def await_new_day(self, program):
        program.await_true(lambda: program.change_today() == "plus 0 hours, 0 minutes",
                           "today is another day", limit=SECONDS_BEFORE_MIDNIGHT + 30)
        self.assertEqual(program.balance(), "plus 1 hours, 30 minutes")

    def test_at_midnight(self):
        self.quit(self.start_on_dashboard())
        self.ledger("add", 90)
        program = self.start(TZ=zone_near_midnight())
        program.await_balance("plus 1 hours, 30 minutes")
        self.assertEqual(program.change_today(), "plus 1 hours, 30 minutes")
        self.await_new_day(program)

    def test_when_the_zone_changes(self):
        settings = self.desktop.home / "etc"
        shutil.copytree("/etc", settings, symlinks=True,
                        ignore=lambda folder, names: {"ssl", "auth.conf.d"} & set(names))
        self.assertTrue(private_mounts.mount("--bind", settings, "/etc"))
        self.set_zone(zone_at_hour(22))
        del self.desktop.environment["TZ"]
        self.quit(self.start_on_dashboard())
        self.ledger("add", 90, "This morning", 0.5)
        program = self.start()
        program.await_balance("plus 1 hours, 30 minutes")
        self.assertEqual(program.change_today(), "plus 1 hours, 30 minutes")
        self.set_zone(zone_at_hour(2))
        self.await_new_day(program)

    def set_zone(self, name):
        """As timedatectl does it: a new link takes the place of the old one."""
        link = Path("/etc/localtime.new")
        link.symlink_to(f"/usr/share/zoneinfo/{name}")
        link.rename("/etc/localtime")


if __name__ == "__main__":
    private_mounts.enter()
    unittest.main()
