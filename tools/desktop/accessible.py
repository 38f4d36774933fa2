"""The accessibility tree of a program, asked anew at every look (AT-SPI 2 over D-Bus)."""
from dataclasses import dataclass

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

PREFIX = "org.a11y.atspi."
CALL_LIMIT_MILLISECONDS = 10_000

# Numbers of AT-SPI's AtspiRole and AtspiStateType that matter here.
ROLES = {
    2: "alert", 7: "check box", 11: "combo box", 16: "dialog", 18: "drawing area", 23: "frame",
    26: "icon", 27: "image", 29: "label", 31: "list", 32: "list item", 33: "menu", 34: "menu bar",
    35: "menu item", 38: "page tab list", 39: "panel", 42: "progress bar", 43: "button",
    45: "radio menu item", 49: "scroll pane", 54: "status bar", 61: "text", 62: "toggle button",
    69: "window", 75: "application", 79: "entry", 81: "chart", 83: "heading", 88: "link",
    98: "grouping", 116: "static",
}
STATES = {
    1: "active", 4: "checked", 7: "editable", 8: "enabled", 11: "focusable", 12: "focused",
    16: "modal", 23: "selected", 24: "sensitive", 25: "showing", 30: "visible",
}


class Gone(Exception):
    """The object, or its program, is no longer there."""


@dataclass(frozen=True)
class Accessible:
    bus: Gio.DBusConnection
    owner: str
    path: str

    def _call(self, interface, method, arguments=None):
        try:
            answer = self.bus.call_sync(
                self.owner, self.path, interface, method, arguments, None, Gio.DBusCallFlags.NONE,
                CALL_LIMIT_MILLISECONDS, None)
        except GLib.Error as error:
            raise Gone(f"{method} of {self.path}: {error.message}") from error
        return answer.unpack()

    def _property(self, interface, name):
        arguments = GLib.Variant("(ss)", (PREFIX + interface, name))
        return self._call("org.freedesktop.DBus.Properties", "Get", arguments)[0]

    @property
    def name(self):
        return self._property("Accessible", "Name")

    @property
    def description(self):
        return self._property("Accessible", "Description")

    @property
    def identifier(self):
        """Empty before Qt 6.5, which has none."""
        try:
            return self._property("Accessible", "AccessibleId")
        except Gone:
            return ""

    @property
    def role(self):
        number = self._call(PREFIX + "Accessible", "GetRole")[0]
        return ROLES.get(number, str(number))

    @property
    def states(self):
        low, high = self._call(PREFIX + "Accessible", "GetState")[0]
        bits = low | high << 32
        return {name for number, name in STATES.items() if bits >> number & 1}

    @property
    def children(self):
        answer = self._call(PREFIX + "Accessible", "GetChildren")[0]
        return [Accessible(self.bus, owner, path) for owner, path in answer]

    @property
    def text(self):
        """What is in a field; Qt tells a new line as a new paragraph."""
        arguments = GLib.Variant("(ii)", (0, -1))
        return self._call(PREFIX + "Text", "GetText", arguments)[0].replace("\u2029", "\n")

    @property
    def selection(self):
        """Start and end of the selected text, or (0, 0)."""
        if self._call(PREFIX + "Text", "GetNSelections")[0] == 0:
            return 0, 0
        return self._call(PREFIX + "Text", "GetSelection", GLib.Variant("(i)", (0,)))

    @property
    def extents(self):
        """Left, top, width and height on the screen."""
        return self._call(PREFIX + "Component", "GetExtents", GLib.Variant("(u)", (0,)))[0]

    def set_text(self, text):
        self._call(PREFIX + "EditableText", "SetTextContents", GLib.Variant("(s)", (text,)))

    def focus(self):
        self._call(PREFIX + "Component", "GrabFocus")

    @property
    def actions(self):
        """The names of what can be done with the object: "Press", "SetFocus", "ShowMenu", …"""
        return [name for name, _, _ in self._call(PREFIX + "Action", "GetActions")[0]]

    def press(self):
        """What a click does."""
        self.act("Press")

    def act(self, action):
        arguments = GLib.Variant("(i)", (self.actions.index(action),))
        self._call(PREFIX + "Action", "DoAction", arguments)

    def descendants(self):
        """Everything below, in reading order."""
        for child in self.children:
            yield child
            yield from child.descendants()

    def find(self, role=None, name=None):
        """The first object below that is showing and has the role and the name; a name is a text or
        a condition on it. None when there is none."""
        return next(self.find_all(role, name), None)

    def find_all(self, role=None, name=None):
        wanted = name if callable(name) or name is None else name.__eq__
        try:
            for found in self.descendants():
                if (role in (None, found.role) and (wanted is None or wanted(found.name))
                        and "showing" in found.states):
                    yield found
        except Gone:
            # The tree changed while it was read; whoever waits looks again.
            return

    def describe(self, depth=0):
        """The tree below as indented text, for a person to read."""
        try:
            shown = ", ".join(sorted(self.states - {"visible", "sensitive", "enabled"}))
            line = f"{'  ' * depth}{self.role} '{self.name}' [{shown}]"
            rows = [line + (f" ({self.description})" if self.description else "")]
            for child in self.children:
                rows.append(child.describe(depth + 1))
            return "\n".join(rows)
        except Gone:
            return f"{'  ' * depth}(gone)"


def program_of(bus, process_id):
    """The root of the program with this process id, or None while it has not registered itself."""
    registry = Accessible(bus, PREFIX + "Registry", "/org/a11y/atspi/accessible/root")
    try:
        for root in registry.children:
            answer = bus.call_sync(
                "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                "GetConnectionUnixProcessID", GLib.Variant("(s)", (root.owner,)), None,
                Gio.DBusCallFlags.NONE, CALL_LIMIT_MILLISECONDS, None)
            if answer.unpack()[0] == process_id:
                return root
    except (Gone, GLib.Error):
        pass
    return None
