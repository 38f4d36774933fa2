"""One program a session: links and second starts go to the one that runs."""
import unittest

from story import Story


class OneInstance(Story):
    def test_a_link_opens_its_route_on_a_cold_start(self):
        self.quit(self.start_on_dashboard())
        program = self.start("QUILLMERE://Reports/anything")
        program.await_route("Calendar")

    def test_a_link_reaches_the_program_that_runs(self):
        program = self.start_on_dashboard()
        for link, title in [("quillmere://history", "Activity"), ("quillmere://settings", "Settings"),
                            ("quillmere://unknown", "Settings"), ("other://overview", "Settings"),
                            ("quillmere://overview", "Time bank")]:
            with self.subTest(link):
                self.assertEqual(self.start(link).process.wait(60), 0)
                program.await_route(title)

    def test_a_second_start_raises_the_first(self):
        program = self.start_on_dashboard()
        window = program.window()
        program.minimize()
        program.await_true(lambda: not program.is_active(), "the window is out of the way")
        self.assertEqual(self.start().process.wait(60), 0)
        program.await_active()
        self.assertEqual(program.window(), window)


if __name__ == "__main__":
    unittest.main()
