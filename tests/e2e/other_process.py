"""Changes that another process saves show up by themselves."""
import unittest

from story import Story


class OtherProcess(Story):
    def test_a_change_saved_elsewhere_is_seen(self):
        program = self.start_on_dashboard()
        self.ledger("add", 90, "Written elsewhere")
        program.await_balance("plus 1 hours, 30 minutes")
        program.await_recent("Written elsewhere, plus 1 hours, 30 minutes")
        program.take("0.5")
        program.await_balance("plus 1 hours, 0 minutes")
        self.assertEqual(self.ledger("list"), ["90 Written elsewhere", "-30 "])


if __name__ == "__main__":
    unittest.main()
