"""Everything by keyboard alone."""
import unittest

from story import Story


class Keyboard(Story):
    def setUp(self):
        super().setUp()
        self.program = self.start_on_dashboard()
        self.program.await_active()

    def await_focus(self, role, name):
        def has_focus():
            found = self.program.focused()
            return found and found.role == role and found.name == name

        self.program.await_true(has_focus, f"the {role} {name!r} has the keyboard")

    def tab_to(self, role, name, key="Tab"):
        for _ in range(30):
            found = self.program.focused()
            if found and (found.role, found.name) == (role, name):
                return
            before = found
            self.program.keys(key)
            self.program.await_true(lambda: self.program.focused() != before, "the focus moves on")
        self.fail(f"{key} never reaches the {role} {name!r}\n{self.program.root().describe()}")

    def test_a_change_is_made_with_keys_only(self):
        self.tab_to("button", "Add time")
        self.program.keys("Return")
        self.await_focus("text", "Amount in hours")
        self.assertEqual(self.program.focused().selection, (0, 1), "the amount is selected")
        self.program.type("2.5")
        self.program.keys("Return")
        self.program.await_composer_closed()
        self.program.await_balance("plus 2 hours, 30 minutes")
        self.await_focus("button", "Add time")

    def test_the_form_is_walked_in_reading_order(self):
        self.program.open_composer("take")
        visited = []
        for _ in range(12):
            found = self.program.focused()
            visited.append(found.name)
            self.program.keys("Tab")
            self.program.await_true(lambda: self.program.focused() != found, "the focus moves on")
        order = ["Amount in hours", "Increase amount by one hour", "Set amount to 1 hours",
                 "Set amount to 2 hours", "Set amount to 4 hours", "Set amount to 8 hours",
                 "Category", "Transaction date"]
        self.assertEqual(visited[: len(order)], order)
        self.assertLess(visited.index("Transaction date"), visited.index("Save flex time"))

    def test_control_enter_saves_from_the_note(self):
        self.program.open_composer("add")
        self.program.type("1")
        note = self.program.note_field()
        note.focus()
        self.program.await_true(lambda: "focused" in note.states, "the note has the keyboard")
        self.program.type("First line")
        self.program.keys("Return")
        self.program.type("second")
        self.program.await_true(lambda: note.text == "First line\nsecond", "Enter starts a line")
        self.program.keys("ctrl+Return")
        self.program.await_composer_closed()
        self.program.await_recent("First line\nsecond, plus 1 hours, 0 minutes")

    def test_escape_closes_without_saving(self):
        self.program.open_composer("add")
        self.program.keys("Escape")
        self.program.await_composer_closed()
        self.program.await_balance("plus 0 hours, 0 minutes")

    def test_an_amount_that_is_not_valid_cannot_be_saved(self):
        self.program.open_composer("add")
        for text, message in [("abc", "Enter a valid number of hours."),
                              ("0", "Enter an amount greater than zero."),
                              ("24.01", "A single adjustment cannot exceed 24 hours.")]:
            with self.subTest(text):
                self.program.keys("ctrl+a")
                self.program.type(text)
                self.program.await_element(name=message)
                self.program.keys("Return")
        self.program.keys("Escape")
        self.program.await_composer_closed()
        self.program.await_balance("plus 0 hours, 0 minutes")

    def test_digits_switch_routes(self):
        for key, title in [("ctrl+2", "Activity"), ("ctrl+3", "Calendar"), ("ctrl+4", "Settings"),
                           ("ctrl+1", "Time bank")]:
            self.program.keys(key)
            self.program.await_route(title)

    def test_closing_the_window_ends_the_program(self):
        self.program.keys("ctrl+w")
        self.assertEqual(self.program.await_exit(), 0)

    def test_the_keys_that_leave_work_over_the_guide(self):
        self.program.press("button", "How Quillmere works")
        self.await_focus("button", "Done")
        self.program.keys("ctrl+q")
        self.assertEqual(self.program.await_exit(), 0)


if __name__ == "__main__":
    unittest.main()
