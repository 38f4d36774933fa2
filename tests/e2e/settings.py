"""The settings: in the main window, and in a window of their own."""
import json
import sqlite3
import unittest
from contextlib import closing

from story import Story

from desktop import picture

ENTRY = "config/autostart/dev.vantor.quillmere.desktop"
PREFERENCES = "config/dev.vantor.quillmere/preferences.json"


class Settings(Story):
    def open_window(self, program):
        program.await_active()
        program.keys("ctrl+comma")
        program.await_element("combo box", "Theme")

    def switch(self, program, name, expected):
        """Presses the switch and waits until it is as expected."""
        program.press("check box", name)
        self.await_switch(program, name, expected)

    def await_switch(self, program, name, expected):
        program.await_true(lambda: ("checked" in program.find("check box", name).states) == expected,
                           f"{name!r} is {'on' if expected else 'off'}")

    def offered(self, program):
        """The categories of the form for taking time."""
        program.open_composer("take")
        program.press("combo box", "Category")
        program.await_element("list item", "Other")
        names = [item.name for item in program.root().find_all("list item")]
        program.keys("Escape")
        program.await_absence("list item", "Other")
        program.keys("Escape")
        program.await_composer_closed()
        return {name for name in names if "," not in name}

    def preferences(self):
        return json.loads((self.desktop.home / PREFERENCES).read_text())

    def fake(self, program):
        """A program that only writes down what it was called with; answers where."""
        folder = self.desktop.home / "bin"
        folder.mkdir(exist_ok=True)
        calls = folder / f"{program}.calls"
        (folder / program).write_text(f'#!/bin/sh\necho "$@" >>{calls}\n')
        (folder / program).chmod(0o755)
        return calls

    def await_call(self, program, calls, words):
        program.await_true(lambda: calls.exists() and calls.read_text().strip() == words,
                           f"{calls.name} holds {words!r}")

    def test_categories_reach_the_form_and_stay_with_their_changes(self):
        program = self.start_on_dashboard()
        program.await_active()
        program.keys("ctrl+4")
        self.switch(program, "Long lunch", False)
        field = program.await_element("text", "New category")
        field.focus()
        program.await_true(lambda: "focused" in field.states, "the field has the keyboard")
        program.type("School  run")
        program.keys("Return")
        program.await_element("button", "Remove School run")
        program.keys("ctrl+1")
        program.await_dashboard()
        self.assertEqual(self.offered(program),
                         {"Appointment", "Personal errands", "Other", "School run"})
        program.take("1", "Fetched them", "School run")
        program.await_recent("Fetched them, minus 1 hours, 0 minutes")
        program.keys("ctrl+4")
        program.press("button", "Remove School run")
        program.await_absence("button", "Remove School run")
        program.keys("ctrl+1")
        program.await_dashboard()
        self.assertEqual(self.offered(program), {"Appointment", "Personal errands", "Other"})
        with closing(sqlite3.connect(self.store)) as store:
            self.assertIn("custom:U2Nob29sIHJ1bg==", "".join(store.iterdump()))

    def test_the_theme_changes_everywhere_at_once(self):
        program = self.start()
        program.await_element("button", "Open my time bank")
        self.open_window(program)
        windows = program.windows()
        self.assertEqual(len(windows), 2)
        program.press("combo box", "Theme")
        program.press("list item", "Dark")
        program.await_true(lambda: all(self.is_dark(program, window) for window in windows),
                           "both windows are dark")
        self.assertEqual(self.preferences()["appearance"], "dark")
        path = self.desktop.home / PREFERENCES
        other = path.with_suffix(".new")
        other.write_text(json.dumps(self.preferences() | {"appearance": "light"}))
        other.replace(path)
        program.await_true(lambda: not any(self.is_dark(program, window) for window in windows),
                           "both windows follow another program")

    def is_dark(self, program, window):
        """By the ground in the lower right corner, which no other window covers."""
        left, top, width, height = program.geometry(window)
        _, _, rows = picture.cut(self.desktop.screen(), left, top + height - 4, width, 1)
        return max(rows[0][-12:]) < 128

    def test_the_window_works_on_the_first_run(self):
        program = self.start()
        program.await_element("button", "Open my time bank")
        main = program.window()
        self.open_window(program)
        settings = program.windows(other_than=main)[0]
        self.assertEqual(program.geometry(settings)[2:], (620, 580))
        self.switch(program, "Appointment", False)
        program.keys("Next")
        self.switch(program, "Hide window to menu bar with ⌘W", True)
        self.assertTrue(self.preferences()["closeWindowToMenuBar"])
        program.keys("ctrl+w")
        program.await_absence("combo box", "Theme")
        program.set_up()
        self.assertNotIn("Appointment", self.offered(program))
        self.quit(program)

    def test_launch_at_login_is_what_the_desktop_says(self):
        calls = self.fake("xfce4-session-settings")
        path = f"{calls.parent}:{self.desktop.environment['PATH']}"
        program = self.start(PATH=path, XDG_CURRENT_DESKTOP="XFCE")
        program.await_element("button", "Open my time bank")
        self.open_window(program)
        self.switch(program, "Launch Quillmere at login", True)
        entry = self.desktop.home / ENTRY
        self.assertIn(f'Exec="{program.process.args[0]}"\n', entry.read_text())
        program.keys("ctrl+w")
        program.await_absence("combo box", "Theme")
        entry.write_text(entry.read_text() + "Hidden=true\n")
        self.open_window(program)
        self.await_switch(program, "Launch Quillmere at login", True)
        program.await_element(
            name="Allow Quillmere in System Settings to finish enabling launch at login.")
        program.press("button", "Open Login Items Settings")
        self.await_call(program, calls, "")
        self.switch(program, "Launch Quillmere at login", False)
        program.await_absence("button", "Open Login Items Settings")
        self.assertFalse(entry.exists())

    def test_help_opens_in_the_browser(self):
        calls = self.fake("xdg-open")
        program = self.start(PATH=f"{calls.parent}:{self.desktop.environment['PATH']}")
        program.await_element("button", "Open my time bank")
        self.open_window(program)
        program.keys("End")
        program.press(None, "Privacy notice")
        self.await_call(program, calls, "https://quillmere.vantor.dev/apps/quillmere/privacy")


if __name__ == "__main__":
    unittest.main()
