"""The item in the tray: what it shows, what it does, and that the program is never out of reach."""
import json
import signal
import time
import unittest

from story import Story

from desktop import children
from desktop.tray import Tray

SOON = 8  # seconds, in which a program starts
DAY = 86400


class TrayStory(Story):
    has_watcher = True

    def setUp(self):
        super().setUp()
        if self.has_watcher:
            self.tray = self.enterContext(Tray(self.desktop))

    def prefer(self, **values):
        """Changes preferences as another program would."""
        folder = self.desktop.home / "config" / "dev.vantor.quillmere"
        folder.mkdir(parents=True, exist_ok=True)
        file = folder / "preferences.json"
        stored = json.loads(file.read_text()) if file.exists() else {}
        new = folder / "preferences.new"
        new.write_text(json.dumps(stored | values))
        new.rename(file)

    def start_in_tray(self, **preferences):
        """A program that was set up, its item, and the tray that shows it."""
        self.prefer(**preferences)
        self.tray.show()
        program = self.start_on_dashboard()
        item = self.tray.item()
        # A quarter of a second after the item is there the program brings its window up, once.
        over = time.monotonic() + 1
        program.await_true(lambda: time.monotonic() > over, "the start is over")
        return program, item

    def close_window(self, program):
        program.await_active()
        program.keys("ctrl+w")

    def is_shown(self, program):
        return any("showing" in window.states for window in program.root().children)

    def await_hidden(self, program):
        program.await_true(lambda: not self.is_shown(program), "the window is hidden")
        self.assertIsNone(program.process.poll())

    def await_tooltip(self, program, spoken):
        program.await_true(lambda: self.tray.item().tooltip == f"Quillmere time bank: {spoken}",
                           f"the tooltip says {spoken}")


class Label(TrayStory):
    def test_the_item_tells_the_balance_at_any_moment(self):
        program, item = self.start_in_tray()
        self.await_tooltip(program, "plus 0 hours, 0 minutes")
        program.add("1.5")
        self.await_tooltip(program, "plus 1 hours, 30 minutes")
        self.ledger("add", -240)
        self.await_tooltip(program, "minus 2 hours, 30 minutes")
        self.assertEqual(item.menu, [
            ("Available flex time: \u22122:30", False), ("", True),
            ("Add time", True), ("Take flex time", True), ("", True),
            ("Open app", True), ("Quit", True)])
        self.ledger("add", 150, "Later", -SOON / DAY)
        program.await_balance("plus 0 hours, 0 minutes")
        self.await_tooltip(program, "plus 0 hours, 0 minutes")

    def test_the_icon_follows_the_display_mode(self):
        program, item = self.start_in_tray()
        seen = []
        for mode in ("logoAndBalance", "logoOnly", "balanceOnly"):
            self.prefer(menuBarDisplayMode=mode)
            program.await_true(lambda: item.pictures not in seen, f"the icon is that of {mode}")
            seen.append(item.pictures)
        self.assertLessEqual({16, 22, 24, 32, 44, 48}, set(seen[0]))
        self.prefer(menuBarDisplayMode="unknown")
        program.await_true(lambda: item.pictures == seen[0], "the icon is the usual one")
        self.prefer(showMenuBarExtra=False)
        program.await_true(self.tray.is_empty, "the item is gone")


class Panel(TrayStory):
    def test_an_activation_opens_and_closes_it_and_the_menu_opens_its_forms(self):
        program, item = self.start_in_tray()
        item.activate()
        program.await_element("button", "Open app")
        item.activate()
        program.await_absence("button", "Open app")
        item.choose("Take flex time")
        program.await_element("text", "Amount in hours")
        program.fill("2")
        program.save("take")
        self.await_tooltip(program, "minus 2 hours, 0 minutes")


class Closing(TrayStory):
    def test_the_window_hides_and_comes_back(self):
        program, item = self.start_in_tray(closeWindowToMenuBar=True)
        program.move(-300, 90)
        ordinary = program.geometry()
        ways = {
            "the menu": lambda: item.choose("Open app"),
            "a second start": lambda: self.assertEqual(self.start().await_exit(), 0),
            "a link": lambda: self.assertEqual(self.start("quillmere://history").await_exit(), 0),
        }
        for name, come_back in ways.items():
            if name == "a link":
                program.toggle_maximized()
            with self.subTest(name):
                place = program.geometry()
                self.close_window(program)
                self.await_hidden(program)
                come_back()
                program.await_active()
                self.assertEqual(program.geometry(), place)
        program.await_route("Activity")
        program.toggle_maximized()
        program.await_true(lambda: program.geometry() == ordinary, "the window is as it was")
        self.close_window(program)
        self.await_hidden(program)
        self.tray.item().choose("Quit")
        self.assertEqual(program.await_exit(), 0)

    def test_without_a_tray_the_window_stays(self):
        self.prefer(closeWindowToMenuBar=True)
        program = self.start_on_dashboard()
        self.close_window(program)
        # The next key is handled after the one that closes.
        program.keys("ctrl+2")
        program.await_route("Activity")
        self.assertTrue(self.is_shown(program))
        with self.subTest("one that comes later gets the item"):
            self.tray.show()
            self.await_tooltip(program, "plus 0 hours, 0 minutes")
            self.close_window(program)
            self.await_hidden(program)
        for name, leave, come_back in [("hides", self.tray.hide, self.tray.show),
                                       ("crashes", self.tray.crash, self.tray.start_again)]:
            with self.subTest(f"the window comes back when it {name}"):
                leave()
                program.await_active()
                come_back()
                self.await_tooltip(program, "plus 0 hours, 0 minutes")
                self.close_window(program)
                self.await_hidden(program)
        self.tray.hide()
        program.await_active()
        self.quit(program)

    def test_a_watcher_that_takes_over_gets_the_item(self):
        self.start_in_tray()
        successor = self.enterContext(Tray(self.desktop))
        successor.show()
        self.assertEqual(successor.item().tooltip, "Quillmere time bank: plus 0 hours, 0 minutes")

    def test_the_window_comes_back_when_the_bus_dies(self):
        program, _ = self.start_in_tray(closeWindowToMenuBar=True)
        main = program.window()
        self.close_window(program)
        self.await_hidden(program)
        self.desktop.crash_bus()
        # Another window of the display's; the hidden one was given up.
        self.assertTrue(program.windows(other_than=main))

    def test_without_the_item_a_second_start_is_the_way_back(self):
        self.prefer(closeWindowToMenuBar=True, showMenuBarExtra=False)
        self.tray.show()
        program = self.start_on_dashboard()
        self.close_window(program)
        self.await_hidden(program)
        self.assertTrue(self.tray.is_empty())
        self.assertEqual(self.start().await_exit(), 0)
        program.await_active()
        self.quit(program)

    def test_a_signal_ends_a_hidden_program_in_order(self):
        program, _ = self.start_in_tray(closeWindowToMenuBar=True)
        self.close_window(program)
        self.await_hidden(program)
        program.process.send_signal(signal.SIGTERM)
        self.assertEqual(program.await_exit(), 0)


class Embedding(TrayStory):
    has_watcher = False

    def test_a_tray_of_a_small_panel_holds_the_item_too(self):
        tray = children.start(["trayer"], env=self.desktop.environment)
        self.addCleanup(children.stop, tray)
        self.prefer(closeWindowToMenuBar=True)
        program = self.start_on_dashboard()
        main = program.window()
        program.await_true(lambda: program.windows(other_than=main), "the item is there")
        self.close_window(program)
        self.await_hidden(program)
        children.stop(tray)
        program.await_active()


if __name__ == "__main__":
    unittest.main()
