"""A person keeps a time bank: from the first start to the next day's."""
import unittest

from story import Story


class MainJob(Story):
    def test_a_person_keeps_a_time_bank(self):
        program = self.start()
        program.set_up()
        self.assertEqual(program.balance(), "plus 0 hours, 0 minutes")
        self.assertEqual(program.recent(), [])

        program.add("1.5", "Release evening")
        program.await_balance("plus 1 hours, 30 minutes")
        program.take("0,75", category="Appointment")
        program.await_balance("plus 0 hours, 45 minutes")
        self.assertEqual(program.change_today(), "plus 0 hours, 45 minutes")
        self.assertEqual(program.trend(), "Current balance plus 0 hours, 45 minutes")
        program.await_recent("Time subtracted, minus 0 hours, 45 minutes",
                             "Release evening, plus 1 hours, 30 minutes")
        self.assertIsNotNone(program.find(name=lambda name: name.startswith("Time subtracted")))

        program.undo()
        program.await_balance("plus 1 hours, 30 minutes")
        program.await_recent("Release evening, plus 1 hours, 30 minutes")
        self.quit(program)

        program = self.start()
        program.await_balance("plus 1 hours, 30 minutes")
        program.await_recent("Release evening, plus 1 hours, 30 minutes")
        self.assertIsNone(program.find("button", "Undo"))
        self.quit(program)

    def test_a_saved_change_survives_being_killed(self):
        program = self.start_on_dashboard()
        for round_, spoken in enumerate(["plus 1 hours, 0 minutes", "plus 2 hours, 0 minutes"]):
            program.open_composer("add")
            program.fill("1", f"Evening {round_}")
            program.save("add")
            # The form closes when the save is done, not before.
            program.await_composer_closed()
            program.kill()
            program = self.start()
            program.await_balance(spoken)
        self.assertEqual(self.ledger("check"), ["ok"])

    def test_the_first_run_screen_stays_until_it_is_confirmed(self):
        program = self.start()
        program.await_element("button", "Open my time bank")
        self.assertIsNotNone(program.find(name="Your flex time, made simple"))
        self.quit(program)
        program = self.start()
        program.set_up()
        self.quit(program)
        self.start().await_dashboard()


if __name__ == "__main__":
    unittest.main()
