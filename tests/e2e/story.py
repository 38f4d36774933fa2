"""What the end-to-end tests share: a desktop for each test, and the program under test on it."""
import os
import subprocess
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))

from desktop.desktop import Desktop  # noqa: E402
from desktop.time_bank import TimeBank  # noqa: E402

PROGRAM = os.environ.get("QUILLMERE_PROGRAM", str(ROOT / "build/dev/Quillmere/app/quillmere"))
LEDGER = os.environ.get("QUILLMERE_LEDGER", str(ROOT / "build/dev/tools/ledger/ledger"))


class Story(unittest.TestCase):
    environment = {}

    def setUp(self):
        self.desktop = self.enterContext(Desktop(**self.environment))
        self.programs = []
        self.addCleanup(self._stop_programs)

    def start(self, *arguments, **environment):
        log = self.desktop.home / f"program-{len(self.programs)}.log"
        program = TimeBank(self.desktop, PROGRAM, *arguments, log=log, **environment)
        self.programs.append(program)
        return program

    def start_on_dashboard(self):
        """A first start, set up."""
        program = self.start()
        program.set_up()
        return program

    def quit(self, program):
        self.assertEqual(program.quit(), 0, program.log.read_text(errors="replace"))

    @property
    def data_folder(self):
        return self.desktop.home / "data"

    @property
    def store(self):
        """The store's file; waits for none."""
        return next(self.data_folder.rglob("Quillmere.sqlite"))

    def ledger(self, *words):
        """Reads or changes the store as another process of the system would."""
        answer = subprocess.run([LEDGER, str(self.store), *map(str, words)], check=True, timeout=120,
                                capture_output=True, text=True, env=self.desktop.environment)
        return answer.stdout.splitlines()

    def _stop_programs(self):
        for program in self.programs:
            program.kill()
