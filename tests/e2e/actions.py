"""The program that adds and takes time for scripts, launchers and search boxes, called as they call it."""
import base64
import json
import os
import sqlite3
import subprocess
import unittest
from pathlib import Path

import private_mounts
from story import LEDGER, ROOT, Story

from desktop.desktop import Gio, GLib
from desktop.services import Service
from desktop.session import Session
from desktop.waiting import eventually

PROGRAM = os.environ.get("QUILLMERE_ACTIONS",
                         str(ROOT / "build/dev/Quillmere/actions/quillmere-actions"))
NAME = "dev.vantor.quillmere.Actions"
PATH = "/dev/vantor/quillmere/Actions"
ADDED = "Time added to your bank."
TAKEN = "Time subtracted from your bank."
INVALID = "Choose a nonzero amount up to 24 hours."
NEEDS_SETUP = "Open Quillmere and finish setup before changing your time bank."
SHORTCUTS = {"add-30-minutes": ("Add 30 minutes", ADDED),
             "subtract-30-minutes": ("Subtract 30 minutes", TAKEN)}
NOTIFICATIONS = """<node><interface name="org.freedesktop.Notifications"><method name="Notify">
<arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
<arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
<arg type="a{sv}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/>
</method></interface></node>"""


class Ear:
    """Shows notifications, as a desktop does, and hears those who draw widgets being called."""

    def __init__(self, session):
        self.notes = []
        self.reloads = 0
        self._bus = session.connect()
        interface = Gio.DBusNodeInfo.new_for_xml(NOTIFICATIONS).interfaces[0]
        self._bus.register_object("/org/freedesktop/Notifications", interface, self._notify)
        Gio.bus_own_name_on_connection(self._bus, "org.freedesktop.Notifications",
                                       Gio.BusNameOwnerFlags.NONE)
        self._bus.signal_subscribe(
            None, "dev.vantor.quillmere.Widgets", "ReloadAllTimelines",
            "/dev/vantor/quillmere/Widgets", None, Gio.DBusSignalFlags.NONE, self._reload)
        eventually(lambda: self._listened(session), "notifications are shown")

    def await_true(self, check, what):
        def look():
            self._listen()
            return check()

        return eventually(look, what)

    def _listened(self, session):
        self._listen()
        return session.bus.call_sync(
            "org.freedesktop.DBus", "/", "org.freedesktop.DBus", "NameHasOwner",
            GLib.Variant("(s)", ("org.freedesktop.Notifications",)), None, Gio.DBusCallFlags.NONE,
            -1, None).unpack()[0]

    @staticmethod
    def _listen():
        while GLib.MainContext.default().iteration(False):
            pass

    def _notify(self, _bus, _sender, _path, _interface, _method, arguments, invocation):
        application, _, icon, summary, body, _, hints, _ = arguments.unpack()
        self.notes.append((application, icon, summary, body, hints.get("desktop-entry")))
        invocation.return_value(GLib.Variant("(u)", (len(self.notes),)))

    def _reload(self, *_):
        self.reloads += 1


def words(session, *command):
    """What a command prints, or its complaint when it fails."""
    answer = subprocess.run([str(word) for word in command], env=session.environment, text=True,
                            capture_output=True, timeout=120, check=False)
    return answer.stdout.strip() if answer.returncode == 0 else answer.stderr.strip()


def gdbus(session, method, *arguments):
    return words(session, "gdbus", "call", "--session", "--dest", NAME, "--object-path", PATH,
                 "--method", f"{NAME}.{method}", "--", *arguments)


def note(shortcut, body):
    return ("Quillmere", "dev.vantor.quillmere", SHORTCUTS[shortcut][0], body,
            "dev.vantor.quillmere")


class Action(unittest.TestCase):
    def setUp(self):
        self.session = self.enterContext(Session())
        self.service = Service(self.session, NAME, PATH, NAME, PROGRAM)
        self.store = (self.session.home / "data/group.dev.vantor.quillmere/Quillmere.sqlite")
        self.addCleanup(self.service.end)

    def set_up(self):
        self.ledger("fill", 0)

    def ledger(self, *arguments):
        lines = words(self.session, LEDGER, self.store, *arguments).splitlines()
        return [line.strip() for line in lines]

    def adjust(self, minutes):
        return gdbus(self.session, "AdjustTimeBank", minutes)

    def snapshot(self):
        file = self.session.home / "config/group.dev.vantor.quillmere/preferences.json"
        return json.loads(base64.b64decode(json.loads(file.read_text())["widgetSnapshot"]["data"]))

    def call(self, object_name, interface, method, signature, *arguments):
        return self.session.bus.call_sync(
            NAME, f"{PATH}/{object_name}", interface, method, GLib.Variant(signature, arguments),
            None, Gio.DBusCallFlags.NONE, -1, None).unpack()

    def test_every_outcome(self):
        ear = Ear(self.session)
        self.assertEqual(self.adjust(1441), f"('{INVALID}',)")
        self.assertFalse(self.store.exists())
        self.assertEqual(self.adjust(30), f"('{NEEDS_SETUP}',)")
        self.assertFalse(self.snapshot()["isConfigured"])
        self.set_up()
        for minutes, dialog in [(0, INVALID), (1441, INVALID), (-1441, INVALID),
                                (-(2**63), INVALID), (1440, ADDED), (-1440, TAKEN), (-30, TAKEN)]:
            with self.subTest(minutes):
                self.assertEqual(self.adjust(minutes), f"('{dialog}',)")
        self.assertEqual(self.ledger("list"), ["1440", "-1440", "-30"])
        self.assertTrue(self.snapshot()["isConfigured"])
        self.assertEqual(self.snapshot()["balanceSeconds"], -1800)
        ear.await_true(lambda: ear.reloads == 4, "a reload after each snapshot")
        self.assertIn("AdjustTimeBankOnce", words(
            self.session, "gdbus", "introspect", "--session", "--dest", NAME, "--object-path", PATH))

    def test_a_key_books_once(self):
        self.set_up()
        calls = [subprocess.Popen(
            ["gdbus", "call", "--session", "--dest", NAME, "--object-path", PATH, "--method",
             f"{NAME}.AdjustTimeBankOnce", "--", "backup, 3 May", "45"], text=True,
            env=self.session.environment, stdout=subprocess.PIPE) for _ in range(6)]
        answers = {call.communicate(timeout=60)[0].strip() for call in calls}
        self.assertEqual(len(answers), 1)
        self.assertRegex(answers.pop(), rf"^\('{ADDED}', '[0-9A-F-]{{36}}', (int64 )?45\)$")
        for key, minutes, fault in [("backup, 3 May", 46, "KeyStandsForOtherAmount"),
                                    ("", 45, "InvalidKey")]:
            self.assertIn(f"dev.vantor.quillmere.Error.{fault}",
                          gdbus(self.session, "AdjustTimeBankOnce", key, minutes))
        self.assertEqual(gdbus(self.session, "AdjustTimeBankOnce", "another", 0),
                         f"('{INVALID}', '', int64 45)")
        self.assertEqual(self.ledger("list"), ["45"])

    def test_stores_that_cannot_be_used(self):
        def other_program(path):
            with sqlite3.connect(path) as database:
                database.execute("CREATE TABLE notes (text)")

        def newer(path):
            self.set_up()
            with sqlite3.connect(path) as database:
                database.execute("PRAGMA user_version = 2000000000")

        def cut_off(path):
            self.set_up()
            os.truncate(path, path.stat().st_size // 2)

        def no_folder(path):
            path.parent.rmdir()
            path.parent.touch()

        for fault, spoil in [("Foreign", other_program), ("NewerSchema", newer),
                             ("Damaged", cut_off), ("CannotOpen", no_folder),
                             ("CannotOpen", Path.mkdir)]:
            with self.subTest(fault, way=spoil.__name__):
                self.store.parent.mkdir(mode=0o700, exist_ok=True)
                spoil(self.store)
                self.assertIn(f"dev.vantor.quillmere.Error.{fault}: The ", self.adjust(30))
                words(self.session, "rm", "-r", self.store.parent)

    def test_a_store_that_cannot_be_changed_now(self):
        self.set_up()
        ear = Ear(self.session)
        with sqlite3.connect(self.store) as database:
            database.execute("BEGIN IMMEDIATE")
            self.assertIn("dev.vantor.quillmere.Error.Locked: Another program", self.adjust(30))
        database.close()
        folder = self.session.home / "data"
        self.assertTrue(private_mounts.mount("--bind", folder, folder))
        self.assertTrue(private_mounts.mount("-o", "remount,bind,ro", folder))
        self.assertIn("dev.vantor.quillmere.Error.ReadOnly: The time bank", self.adjust(30))
        self.assertIn("Error.ReadOnly", gdbus(self.session, "RunShortcut", "add-30-minutes"))
        told = "The time bank can't be changed because its folder is read-only."
        ear.await_true(lambda: ear.notes == [note("add-30-minutes", told)], "the failure is told")
        self.assertEqual(ear.reloads, 0)
        subprocess.run(["umount", "-l", folder], check=True)
        self.assertEqual(self.ledger("list"), [])

    def test_shortcuts(self):
        self.set_up()
        ear = Ear(self.session)
        expected = []
        for shortcut, (_, dialog) in SHORTCUTS.items():
            self.assertEqual(gdbus(self.session, "RunShortcut", shortcut), f"('{dialog}',)")
            with subprocess.Popen([PROGRAM, "--shortcut", shortcut], stdout=subprocess.PIPE,
                                  text=True, env=self.session.environment) as alone:
                self.assertEqual(alone.stdout.readline(), dialog + "\n")
                expected += [note(shortcut, dialog)] * 2
                ear.await_true(lambda: ear.notes == expected, "both are told")
                alone.kill()
        self.assertEqual(self.ledger("list"), ["30", "30", "-30", "-30"])
        self.assertIn("InvalidArgs", gdbus(self.session, "RunShortcut", "unknown"))

    def test_the_search_of_gnome(self):
        def search(method, signature, *arguments):
            return self.call("SearchProvider", "org.gnome.Shell.SearchProvider2", method, signature,
                             *arguments)

        self.set_up()
        add, subtract = SHORTCUTS
        self.assertEqual(search("GetInitialResultSet", "(as)", ["30"]), ([add, subtract],))
        self.assertEqual(search("GetInitialResultSet", "(as)", ["use", "flex"]), ([subtract],))
        self.assertEqual(search("GetSubsearchResultSet", "(asas)", [add], ["30", "min"]), ([add],))
        self.assertEqual(search("GetResultMetas", "(as)", [subtract, "unknown"]), ([{
            "id": subtract, "name": "Subtract 30 minutes", "gicon": "dev.vantor.quillmere",
            "description": "Subtract 30 minutes in Quillmere"}],))
        ear = Ear(self.session)
        search("ActivateResult", "(sasu)", subtract, ["use"], 0)
        ear.await_true(lambda: ear.notes == [note(subtract, TAKEN)], "the result was performed")
        self.assertEqual(self.ledger("list"), ["-30"])

    def test_krunner(self):
        def runner(method, signature="()", *arguments):
            return self.call("Runner", "org.kde.krunner1", method, signature, *arguments)

        self.set_up()
        add, _ = SHORTCUTS
        self.assertEqual(runner("Actions"), ([],))
        self.assertEqual(runner("Match", "(s)", "no such thing"), ([],))
        self.assertEqual(runner("Match", "(s)", "add flex"), ([(
            add, "Add 30 minutes", "dev.vantor.quillmere", 30, 0.8,
            {"subtext": "Add 30 minutes in Quillmere"})],))
        ear = Ear(self.session)
        runner("Run", "(ss)", add, "")
        ear.await_true(lambda: ear.notes == [note(add, ADDED)], "the match was run")
        self.assertEqual(self.ledger("list"), ["30"])

    def test_it_ends_when_idle_and_starts_again(self):
        self.set_up()
        for balance in (30, 60):
            self.adjust(30)
            program = Path("/proc", str(self.service.process_id()))
            eventually(lambda: not program.exists(), "the program has ended")
            self.assertFalse(self.service.is_running())
            self.assertEqual(self.snapshot()["balanceSeconds"], balance * 60)

    def test_the_command_line(self):
        def run(*arguments):
            answer = subprocess.run([PROGRAM, *arguments], env=self.session.environment, timeout=60,
                                    capture_output=True, text=True, check=False)
            return answer.returncode, answer.stdout, answer.stderr

        usage = "usage: quillmere-actions [--shortcut ID | --version | --help]\n"
        self.assertEqual(run("--help"), (0, usage, ""))
        self.assertRegex(run("--version")[1], r"^quillmere-actions \d+\.\d+\.\d+\n$")
        for wrong in (["30"], ["--shortcut"], ["--help", "more"]):
            self.assertEqual(run(*wrong), (2, "", usage))
        self.assertEqual(run("--shortcut", "unknown")[0], 2)


class ActionBesideTheWindow(Story):
    def setUp(self):
        super().setUp()
        self.service = Service(self.desktop, NAME, PATH, NAME, PROGRAM)
        self.addCleanup(self.service.end)

    def test_the_open_window_shows_each_change(self):
        program = self.start_on_dashboard()
        self.assertEqual(gdbus(self.desktop, "AdjustTimeBank", 90), f"('{ADDED}',)")
        program.await_balance("plus 1 hours, 30 minutes")
        program.minimize()
        self.desktop.bus.call_sync(
            NAME, f"{PATH}/SearchProvider", "org.gnome.Shell.SearchProvider2", "LaunchSearch",
            GLib.Variant("(asu)", (["add"], 0)), None, Gio.DBusCallFlags.NONE, -1, None)
        program.await_active()

    def test_200_calls_of_8_processes_beside_the_window_lose_and_double_none(self):
        program = self.start_on_dashboard()
        script = (f"for i in $(seq 25); do gdbus call --session --dest {NAME} --object-path {PATH}"
                  f" --method {NAME}.AdjustTimeBank 1 || exit 1; done")
        callers = [subprocess.Popen(["sh", "-c", script], env=self.desktop.environment, text=True,
                                    stdout=subprocess.PIPE) for _ in range(8)]
        for _ in range(3):
            program.add("1", "By hand")
        answers = "".join(caller.communicate(timeout=300)[0] for caller in callers)
        self.assertEqual(answers.splitlines(), [f"('{ADDED}',)"] * 200)
        changes = self.ledger("list")
        self.assertEqual((changes.count("1 "), changes.count("60 By hand"), len(changes)),
                         (200, 3, 203))
        program.await_balance("plus 6 hours, 20 minutes")


if __name__ == "__main__":
    private_mounts.enter()
    unittest.main()
