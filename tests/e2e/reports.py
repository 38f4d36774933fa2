"""The calendar: back to the month in which the clocks went back, and that month as a file."""
import time
import unittest
from datetime import datetime, timedelta
from zoneinfo import ZoneInfo

from story import Story

BERLIN = ZoneInfo("Europe/Berlin")
HINT = "Shows this day's time-bank changes"


def longest_day():
    """Noon of the last day of 25 hours, in Berlin."""
    noon = datetime.now(BERLIN).replace(hour=12, minute=0, second=0, microsecond=0)
    while True:
        noon -= timedelta(days=1)
        if noon.replace(hour=0).utcoffset() > noon.utcoffset():
            return noon


class Calendar(Story):
    environment = {"TZ": BERLIN.key}

    def add(self, minutes, note, moment):
        self.ledger("add", minutes, note, (time.time() - moment.timestamp()) / 86400)

    def test_a_month_whose_clocks_went_back(self):
        noon = longest_day()
        self.quit(self.start_on_dashboard())
        # 24 hours after its first minutes this day is not over.
        self.add(60, "Very early", noon.replace(hour=0, minute=10))
        self.add(-15, "Very late", noon.replace(hour=23, minute=50))
        self.add(90, "The day before", noon.replace(hour=23, minute=50) - timedelta(days=1))

        program = self.start()
        program.await_dashboard()
        program.await_active()
        program.keys("ctrl+3")
        program.await_element("button", "Previous period")
        for _ in range(self.months_since(noon)):
            program.keys("Page_Up")
        program.await_element(name=f"{noon:%B} {noon.year}")
        day = f"{noon:%A}, {noon:%B} {noon.day}"
        program.await_true(
            lambda: program.value(f"{day}, {noon.year}") == f"plus 0 hours, 45 minutes. {HINT}",
            "both ends of the long day are in it")
        self.assertEqual(program.value("Net"), "plus 2 hours, 15 minutes")

        program.press("button", f"{day}, {noon.year}")
        program.await_element("button", "Done")
        self.assertIsNotNone(program.find("heading", day))
        self.assertEqual(
            [row.name for row in program.root().find_all("list item") if " hours, " in row.name],
            ["Very early, plus 1 hours, 0 minutes", "Very late, minus 0 hours, 15 minutes"])
        program.keys("Return")
        program.await_absence("button", "Done")

        program.click(program.await_element("button", "Export CSV"))
        # Qt's own dialog knows nothing of assistive technology's presses.
        program.click(program.await_element("button", "Save"))
        saved = self.desktop.home / f"Quillmere-{noon:%Y-%m}.csv"
        before = noon - timedelta(days=1)
        program.await_true(saved.exists, "the export is where the dialog said")
        self.assertEqual(saved.read_bytes().decode(),
                         "date,added_hours,removed_hours,net_change_hours\n"
                         f"{before:%Y-%m-%d},1.50,0.00,1.50\n"
                         f"{noon:%Y-%m-%d},1.00,0.25,0.75\n")

    def test_a_link_arrives_while_an_export_is_dragged(self):
        program = self.start_on_dashboard()
        program.keys("ctrl+3")
        exports = self.desktop.home / "tmp/Quillmere Reports"
        program.pull(program.await_element("button", "Export CSV"))
        program.await_true(lambda: list(exports.glob("*.csv")), "there is a file to drag")
        self.assertEqual(self.start("quillmere://overview").await_exit(), 0)
        program.await_dashboard()
        program.let_go()
        self.quit(program)

    def months_since(self, moment):
        now = datetime.now(BERLIN)
        return 12 * (now.year - moment.year) + now.month - moment.month


if __name__ == "__main__":
    unittest.main()
