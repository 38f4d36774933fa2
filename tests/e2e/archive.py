"""All data out, away, and back in: through the settings window and the program's file dialogs."""
import json
import unittest

from story import Story

LARGE = 60_000


class Archive(Story):
    def export(self, program, name):
        program.export_archive(name)
        file = self.desktop.home / f"{name}.json"
        program.await_true(file.exists, "the archive is where the dialog said")
        return json.loads(file.read_bytes())

    def merge(self, program, file, records):
        program.choose_archive(self.desktop.home / file)
        program.await_element(name=f"Import {records} records?")
        program.press("button", "Merge archive")

    def erase(self, program):
        program.reach("button", "Erase all Quillmere data").press()
        program.await_element(name="Erase all Quillmere data?")
        program.press("button", "Erase all data")

    def test_a_time_bank_survives_its_erasure_in_a_file(self):
        program = self.start_on_dashboard()
        program.add("1.5", "Overtime / release")
        program.take("0.75", "Zahnarzt – früh")
        program.await_balance("plus 0 hours, 45 minutes")
        program.open_settings()
        before = self.export(program, "before #1")
        self.assertEqual(len(before["balanceAdjustments"]), 3)

        self.erase(program)
        program.await_element("button", "Open my time bank")
        self.assertEqual(self.ledger("list"), [])
        self.merge(program, "before #1.json", 4)
        program.await_element(name="Archive imported")
        self.assertIsNotNone(program.find(name="4 added, 0 updated, and 0 already current."))
        program.press("button", "Done")
        program.await_balance("plus 0 hours, 45 minutes")

        after = self.export(program, "after")
        del before["exportedAt"], after["exportedAt"]
        self.assertEqual(after, before)

        self.merge(program, "after.json", 4)
        program.await_element(name="0 added, 0 updated, and 4 already current.")
        program.press("button", "Done")
        self.assertEqual(self.ledger("check"), ["ok"])

    def test_what_is_no_archive_is_refused_in_words(self):
        (self.desktop.home / "broken.json").write_text('{"schemaVersion": 1, "exportedAt": 0, ')
        program = self.start_on_dashboard()
        program.add("1")
        program.open_settings()
        program.choose_archive(self.desktop.home / "broken.json")
        program.await_element(name="Couldn't read the archive")
        program.press("button", "OK")
        program.await_absence(name="Couldn't read the archive")
        self.assertEqual(self.ledger("list"), ["60 "])

    def test_a_large_merge_that_is_killed_is_whole_or_absent(self):
        self.write_large_archive()
        program = self.start_on_dashboard()
        for moment in ("begun", "shown", "written"):
            with self.subTest(moment):
                program.open_settings()
                self.merge(program, "large.json", LARGE)
                self.await_moment(program, moment)
                program.kill()
                self.assertEqual(self.ledger("check"), ["ok"])
                self.assertIn(len(self.ledger("list")), (0, LARGE))
                program = self.start()
                program.await_dashboard()

    def await_moment(self, program, moment):
        """While the merge runs, or, when it is quicker than a look, after it."""
        wal = self.store.with_name(self.store.name + "-wal")
        size = wal.stat().st_size
        seen = {
            "begun": lambda: True,
            "shown": lambda: program.find("progress bar"),
            "written": lambda: wal.stat().st_size > size + 1_000_000,
        }[moment]
        program.await_true(lambda: seen() or program.find(name="Archive imported"),
                           f"the merge has {moment}")

    def write_large_archive(self):
        changes = [{"id": f"11111111-1111-4111-8111-{number:012X}", "date": 1.7e9 + number,
                    "minutes": 1, "note": "", "kind": "manual", "createdAt": 1.7e9,
                    "modifiedAt": 1.7e9} for number in range(LARGE)]
        archive = {"schemaVersion": 1, "exportedAt": 1.7e9, "workEntries": [], "schedules": [],
                   "settings": [], "balanceAdjustments": changes}
        (self.desktop.home / "large.json").write_text(json.dumps(archive))


if __name__ == "__main__":
    unittest.main()
