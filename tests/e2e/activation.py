"""The session bus starts the program when it is called, with a window only where one is asked for.
Without QUILLMERE_ACTIONS the programs are those that are installed."""
import os
import select
import signal
import unittest

from story import PROGRAM, Story

from desktop.services import Service
from desktop.time_bank import TimeBank
from desktop.waiting import eventually

NAME = "dev.vantor.quillmere"
ACTIONS = os.environ.get("QUILLMERE_ACTIONS")


class StartedProcess:
    """A process that somebody else started, with what Program asks of its own."""

    def __init__(self, process_id):
        self.pid = process_id
        self._descriptor = os.pidfd_open(process_id)

    def poll(self):
        return 0 if select.select([self._descriptor], [], [], 0)[0] else None

    def kill(self):
        if self.poll() is None:
            signal.pidfd_send_signal(self._descriptor, signal.SIGKILL)

    def wait(self, limit=None):
        """Whoever started it learns its exit status."""
        if not select.select([self._descriptor], [], [], limit)[0]:
            raise AssertionError(f"not within {limit} s: the program ends")


class StartedProgram(TimeBank):
    def __init__(self, desktop, process_id):
        self.desktop = desktop
        self.log = desktop.home / "desktop.log"
        self.process = StartedProcess(process_id)


class Activation(Story):
    def setUp(self):
        super().setUp()
        self.service = Service(self.desktop, NAME, "/dev/vantor/quillmere",
                               "org.freedesktop.Application", ACTIONS and f"{PROGRAM} --service")
        Service(self.desktop, f"{NAME}.Actions", "/", f"{NAME}.Actions", ACTIONS)

    def started(self):
        program = StartedProgram(self.desktop, self.service.process_id())
        self.programs.append(program)
        return program

    def test_activating_it_opens_the_window_of_the_one_program(self):
        self.service.call("Activate", "(a{sv})", {})
        program = self.started()
        program.set_up()
        program.minimize()
        program.await_true(lambda: not program.is_active(), "the window is out of the way")
        self.assertEqual(self.start().process.wait(60), 0)
        program.await_active()
        program.quit()

    def test_opening_a_link_shows_where_it_leads(self):
        self.quit(self.start_on_dashboard())
        self.service.call("Open", "(asa{sv})", ["quillmere://reports"], {})
        self.started().await_route("Calendar")

    def test_a_shortcut_changes_the_balance_and_brings_no_window(self):
        self.quit(self.start_on_dashboard())
        self.service.call("ActivateAction", "(sava{sv})", "add-30-minutes", [], {})
        eventually(lambda: not self.service.is_running(), "the program ends by itself")
        program = self.start()
        program.await_balance("plus 0 hours, 30 minutes")
        program.minimize()
        program.await_true(lambda: not program.is_active(), "the window is out of the way")
        self.service.call("ActivateAction", "(sava{sv})", "subtract-30-minutes", [], {})
        program.await_true(lambda: program.balance().endswith("0 hours, 0 minutes"),
                           "the open window follows")
        self.assertFalse(program.is_active())


if __name__ == "__main__":
    unittest.main()
