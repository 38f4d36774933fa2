"""Going through what was recorded: correcting, deleting, and taking back a mistake in time."""
import unittest

from story import Story


class Activity(Story):
    def setUp(self):
        super().setUp()
        self.program = self.start_on_dashboard()
        for days, (minutes, note) in enumerate([(60, "demo"), (-90, "dentist"), (480, "on call")]):
            self.ledger("add", minutes, note, days)
        self.program.await_active()
        self.program.keys("ctrl+2")
        self.await_rows("demo", "dentist", "on call")

    def rows(self):
        return list(self.program.root().find_all("list item"))

    def await_rows(self, *notes):
        self.program.await_true(
            lambda: [row.name.split(",")[0] for row in self.rows()] == list(notes),
            f"the rows are {notes}")

    def row(self, note):
        return self.program.await_element("list item", lambda name: name.startswith(note))

    def open(self, note):
        self.row(note).press()
        self.program.await_element("button", "Save")

    def await_closed(self):
        self.program.await_absence("button", "Save")

    def reach_first_row(self):
        for _ in range(12):
            found = self.program.focused()
            if found and found.role == "list item":
                self.program.keys("Home")
                return
            self.program.keys("Tab")
            self.program.await_true(lambda: self.program.focused() != found, "the focus moves on")
        self.fail("Tab never reaches the list")

    def confirm(self, button):
        """Moves from "Cancel", which has the keyboard, to the button."""
        for name, key in (("Cancel", "Tab"), (button, None)):
            found = self.program.await_element("button", name)
            self.program.await_true(lambda: "focused" in found.states, f"{name} has the keyboard")
            if key:
                self.program.keys(key)

    def stored(self):
        return sorted(self.ledger("list"))

    def test_a_change_is_corrected(self):
        self.open("dentist")
        self.program.keys("Up")
        self.program.await_element(name="Hours: 2")
        self.program.await_element("text", "Optional note").set_text("dentist, second visit")
        self.program.await_element(name="21/280 characters")
        self.program.await_element("combo box", "Adjustment").press()
        self.program.await_element("list item", "Appointment").press()
        self.program.await_element(
            name="This category deducts the amount below from your time bank.")
        self.program.press("button", "Save")
        self.await_closed()
        self.program.await_element("list item", lambda name: name.startswith(
            "dentist, second visit") and name.endswith("minus 2 hours, 30 minutes"))
        self.assertIn("-150 dentist, second visit", self.stored())

    def test_a_mistake_is_taken_back(self):
        before = self.stored()
        self.open("dentist")
        self.program.keys("Up")
        self.program.press("button", "Cancel")
        self.await_closed()
        self.open("dentist")
        self.program.await_element(name="Hours: 1")
        self.program.press("button", "Delete activity")
        self.program.await_element(name="Delete this time-bank change?")
        # Whoever presses on without reading has cancelled.
        self.program.keys("Return")
        self.program.await_absence(name="Delete this time-bank change?")
        self.program.keys("Escape")
        self.await_closed()
        self.await_rows("demo", "dentist", "on call")
        self.assertEqual(self.stored(), before)

    def test_a_change_is_deleted_from_its_form(self):
        self.open("dentist")
        self.program.press("button", "Delete activity")
        self.program.await_element(name="This can't be undone.")
        alert = self.program.await_element("alert", "Delete this time-bank change?")
        alert.find("button", "Delete activity").press()
        self.await_closed()
        self.await_rows("demo", "on call")
        self.assertEqual(len(self.stored()), 2)

    def test_several_are_deleted_by_keyboard(self):
        self.reach_first_row()
        self.program.keys("shift+Down")
        self.program.await_true(
            lambda: ["selected" in row.states for row in self.rows()] == [True, True, False],
            "two rows are selected")
        self.program.keys("Delete")
        self.program.await_element(name="Delete 2 items?")
        self.program.await_element(name="This deletion can't be undone.")
        self.confirm("Delete items")
        self.program.keys("Return")
        self.await_rows("on call")
        self.assertEqual(self.stored(), ["480 on call"])

    def test_a_key_held_down_deletes_what_was_confirmed_and_no_more(self):
        self.reach_first_row()
        self.program.hold("Delete")
        self.program.await_element("button", "Delete item")
        self.program.release("Delete")
        self.confirm("Delete item")
        self.program.hold("Return")
        self.await_rows("dentist", "on call")
        self.program.await_true(lambda: "focused" in self.row("dentist").states,
                                "the next row has the keyboard")
        self.program.release("Return")
        self.assertIsNone(self.program.find("button", "Save"), "nothing was opened")
        self.await_rows("dentist", "on call")


if __name__ == "__main__":
    unittest.main()
