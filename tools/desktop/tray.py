"""A tray on a desktop: the watcher and the host of status notifier items, and what a person sees and
does there. Read and driven as panels do it (StatusNotifierItem and com.canonical.dbusmenu)."""
import threading

from gi.repository import Gio, GLib

from .waiting import eventually

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
CALL_LIMIT_MILLISECONDS = 10_000
TAKE_OVER = 0x1 | 0x2  # may be replaced, and replaces
INTERFACE = f"""<node><interface name="{WATCHER}">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <signal name="StatusNotifierHostRegistered"/>
  <signal name="StatusNotifierHostUnregistered"/>
</interface></node>"""


class TrayItem:
    def __init__(self, bus, owner, path):
        self._bus, self._owner, self._path = bus, owner, path

    def _call(self, path, interface, method, arguments):
        answer = self._bus.call_sync(self._owner, path, interface, method, arguments, None,
                                     Gio.DBusCallFlags.NONE, CALL_LIMIT_MILLISECONDS, None)
        return answer.unpack()

    def _property(self, name):
        return self._call(self._path, "org.freedesktop.DBus.Properties", "Get",
                          GLib.Variant("(ss)", (ITEM, name)))[0]

    @property
    def tooltip(self):
        return self._property("ToolTip")[2]

    @property
    def pictures(self):
        """The icon by its width, each as ARGB bytes."""
        return {width: bytes(pixels) for width, height, pixels in self._property("IconPixmap")
                if width == height}

    @property
    def menu(self):
        """The lines of the menu as (text, whether it can be chosen); "" is a separator."""
        return [(line.get("label", ""), line.get("enabled", True)) for _, line in self._lines()]

    def choose(self, text):
        number = next(number for number, line in self._lines() if line.get("label") == text)
        self._call(self._property("Menu"), MENU, "Event",
                   GLib.Variant("(isvu)", (number, "clicked", GLib.Variant("i", 0), 0)))

    def activate(self):
        self._call(self._path, ITEM, "Activate", GLib.Variant("(ii)", (0, 0)))

    def _lines(self):
        _, (_, _, children) = self._call(self._property("Menu"), MENU, "GetLayout",
                                         GLib.Variant("(iias)", (0, -1, [])))
        return [(number, line) for number, line, _ in children]


class Tray:
    """Use as a context manager: the watcher is there within, and takes over from one that was there.
    Hosts come and go with `show` and `hide`, as a panel that is started and stopped."""

    def __init__(self, desktop):
        self.bus = desktop.connect()
        self._items = {}
        self._shown = False
        self._context = GLib.MainContext()
        self._loop = GLib.MainLoop(self._context)
        self._ready = threading.Event()
        self._thread = threading.Thread(target=self._run, daemon=True)

    def __enter__(self):
        self._thread.start()
        self._ready.wait()
        self._name("RequestName", GLib.Variant("(su)", (WATCHER, TAKE_OVER)))
        return self

    def __exit__(self, *_):
        self._loop.quit()
        self._thread.join()
        if not self.bus.is_closed():
            self.bus.close_sync(None)

    def show(self):
        self._shown = True
        self._tell("StatusNotifierHostRegistered")

    def hide(self):
        self._shown = False
        self._tell("StatusNotifierHostUnregistered")

    def crash(self):
        """The watcher goes as well, without a word."""
        self._shown = False
        self._items.clear()
        self._name("ReleaseName", GLib.Variant("(s)", (WATCHER,)))

    def start_again(self):
        self._shown = True
        self._name("RequestName", GLib.Variant("(su)", (WATCHER, TAKE_OVER)))

    def item(self):
        """The only item; waits for it."""

        def look():
            items = list(self._items.items())
            return TrayItem(self.bus, *items[0]) if len(items) == 1 else None

        return eventually(look, "there is one item in the tray")

    def is_empty(self):
        return not self._items

    def _run(self):
        self._context.push_thread_default()
        node = Gio.DBusNodeInfo.new_for_xml(INTERFACE)
        self.bus.register_object("/StatusNotifierWatcher", node.interfaces[0], self._on_call,
                                 self._on_get, None)
        self.bus.signal_subscribe("org.freedesktop.DBus", "org.freedesktop.DBus", "NameOwnerChanged",
                                  None, None, Gio.DBusSignalFlags.NONE, self._on_owner_changed)
        self._ready.set()
        self._loop.run()

    def _on_call(self, bus, sender, path, interface, method, arguments, invocation):
        # A path of the caller, or the name of its service.
        name = arguments.unpack()[0]
        self._items[sender] = name if name.startswith("/") else "/StatusNotifierItem"
        invocation.return_value(None)

    def _on_get(self, bus, sender, path, interface, name):
        return GLib.Variant("b", self._shown)

    def _on_owner_changed(self, bus, sender, path, interface, signal, arguments):
        name, _, new_owner = arguments.unpack()
        if not new_owner:
            self._items.pop(name, None)

    def _tell(self, signal):
        self.bus.emit_signal(None, "/StatusNotifierWatcher", WATCHER, signal, None)

    def _name(self, method, arguments):
        self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                           method, arguments, None, Gio.DBusCallFlags.NONE, -1, None)
