"""Quillmere on a desktop, in the words of the person who uses it."""
from .program import Program

SAVE = {"add": "Save added time", "take": "Save flex time"}
OPEN = {"add": "Add time", "take": "Take flex time"}
ROUTES = ("Time bank", "Activity", "Calendar", "Settings")


class TimeBank(Program):
    def set_up(self):
        """Leaves the first-run screen for the dashboard."""
        self.press("button", "Open my time bank")
        self.await_element("button", OPEN["add"])

    def await_dashboard(self):
        self.await_element("button", OPEN["add"])

    def add(self, hours, note=""):
        self._record("add", hours, note, None)

    def take(self, hours, note="", category=None):
        self._record("take", hours, note, category)

    def open_composer(self, mode):
        """Opens the form and answers its amount field, once it has the keyboard."""
        self.press("button", OPEN[mode])
        field = self.await_element("text", "Amount in hours")
        self.await_true(lambda: "focused" in field.states, "the amount has the keyboard")
        return field

    def fill(self, hours, note=""):
        self.await_element("text", "Amount in hours").set_text(hours)
        if note:
            self.note_field().set_text(note)

    def note_field(self):
        return self.await_element("text", lambda name: name.startswith("Note"))

    def choose_category(self, category):
        self.await_element("combo box", "Category").press()
        self.await_element("list item", category).press()

    def save(self, mode):
        self.press("button", SAVE[mode])

    def await_composer_closed(self):
        self.await_absence("text", "Amount in hours")

    def undo(self):
        self.press("button", "Undo")
        self.await_absence("button", "Undo")

    def open_settings(self):
        """Opens the settings window, which takes the keyboard."""
        self.await_active()
        self.keys("ctrl+comma")
        self.await_element("heading", "Appearance")

    def export_archive(self, name):
        """Exports to where the dialog stands. The name, without its suffix, is typed over the one
        that Qt's own file dialog offers."""
        self.reach("button", "Export data archive").press()
        self.await_element("button", "Save")
        self.await_true(lambda: self.focused().name == "File name", "the name has the keyboard")
        self.type(name)
        self.keys("Return")
        self.await_absence("button", "Save")

    def choose_archive(self, path):
        """Chooses an archive by its path, as Qt's own file dialog takes one."""
        self.reach("button", "Import data archive").press()
        self.await_element("button", "Open")
        self.keys("ctrl+l")
        self.await_true(lambda: self.focused().role == "text", "the path has the keyboard")
        self.keys("ctrl+a")
        self.type(str(path))
        self.keys("Return")
        self.await_absence("button", "Open")

    def quit(self):
        self.await_active()
        self.keys("ctrl+q")
        return self.await_exit()

    def value(self, name):
        """What accessibility reads out as the value of the element, or nothing."""
        for element in self.root().find_all(name=name):
            if element.description:
                return element.description
        return None

    def balance(self):
        return self.value("Time bank balance")

    def change_today(self):
        return self.value("Time-bank change today")

    def trend(self):
        return self.value(lambda name: name.startswith("Balance history for the last"))

    def recent(self):
        """The latest changes as they are read out, newest first."""
        return [row.name for row in self.root().find_all("list item")
                if row.name.endswith(" minutes")]

    def await_balance(self, spoken):
        self.await_true(lambda: self.balance() == spoken, f"the balance is {spoken}")

    def await_recent(self, *rows):
        self.await_true(lambda: self.recent() == list(rows), f"the latest changes are {rows}")

    def await_route(self, title):
        self.await_true(lambda: self._selected_route() == title, f"the route is {title}")

    def _selected_route(self):
        for title in ROUTES:
            entry = self.find("button", title)
            if entry and "Selected" in entry.description:
                return title
        return None

    def _record(self, mode, hours, note, category):
        self.open_composer(mode)
        self.fill(hours, note)
        if category:
            self.choose_category(category)
        self.save(mode)
        self.await_composer_closed()
