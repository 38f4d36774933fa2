"""A disk that is full or has turned read-only: nothing is lost, and the person is told."""
import errno
import subprocess
import unittest

import private_mounts
from story import Story

TITLE = "Couldn't save the time change"
MESSAGE = "Your change wasn't saved. Please try again."


class FailingDisk(Story):
    def fail_to_save(self, program):
        """Saves a filled form in vain, and leaves it as it was found: open, with its text."""
        program.save("add")
        program.await_element(name=TITLE)
        self.assertIsNotNone(program.find(name=MESSAGE))
        program.press("button", "OK")
        program.await_absence(name=TITLE)
        self.assertEqual(program.find("text", "Amount in hours").text, "2.25")
        self.assertEqual(program.note_field().text, "Typed with care")

    def open_filled_form(self):
        program = self.start_on_dashboard()
        program.add("1", "Before")
        program.open_composer("add")
        program.fill("2.25", "Typed with care")
        return program

    def fill_disk(self):
        filler = self.data_folder / "filler"
        with open(filler, "wb", buffering=0) as file:
            for size in (4096, 1):
                try:
                    while file.write(b"\0" * size):
                        pass
                except OSError as error:
                    self.assertEqual(error.errno, errno.ENOSPC)
        return filler

    def test_a_full_disk(self):
        self.assertTrue(private_mounts.mount("-t", "tmpfs", "-o", "size=2m,mode=0700", "tmpfs",
                                             self.data_folder))
        program = self.open_filled_form()
        filler = self.fill_disk()
        self.fail_to_save(program)
        self.fail_to_save(program)
        filler.unlink()
        self.assertEqual(self.ledger("list"), ["60 Before"])
        program.save("add")
        program.await_composer_closed()
        program.await_balance("plus 3 hours, 15 minutes")
        self.quit(program)
        self.assertEqual(self.ledger("list"), ["60 Before", "135 Typed with care"])

    def test_a_disk_that_turns_read_only(self):
        image = self.desktop.home / "disk"
        with open(image, "wb") as file:
            file.truncate(16 << 20)
        subprocess.run(["/sbin/mkfs.ext4", "-q", image], check=True)
        if not private_mounts.mount("-o", "loop", image, self.data_folder):
            self.skipTest("this machine has no loop devices for us")
        self.addCleanup(subprocess.run, ["umount", "-l", self.data_folder], check=True)
        program = self.open_filled_form()
        # As the kernel does with a disk that reports errors.
        self.assertTrue(private_mounts.mount("-o", "remount,abort", self.data_folder))
        self.fail_to_save(program)
        program.keys("Escape")
        program.await_composer_closed()
        program.await_balance("plus 1 hours, 0 minutes")
        program.kill()

        subprocess.run(["umount", self.data_folder], check=True)
        repair = subprocess.run(["/sbin/e2fsck", "-fy", image], capture_output=True, check=False)
        self.assertLessEqual(repair.returncode, 1, repair.stdout)
        self.assertTrue(private_mounts.mount("-o", "loop", image, self.data_folder))
        self.start().await_balance("plus 1 hours, 0 minutes")
        self.assertEqual(self.ledger("list"), ["60 Before"])

    def test_a_store_that_cannot_be_written_at_all_is_replaced_for_the_session(self):
        self.quit(self.start_on_dashboard())
        self.assertTrue(private_mounts.mount("--bind", self.data_folder, self.data_folder))
        self.assertTrue(private_mounts.mount("-o", "remount,bind,ro", self.data_folder))
        program = self.start()
        program.await_element(
            name="Storage is unavailable. Changes will be lost when Quillmere closes.")
        program.set_up()
        program.add("1")
        program.await_balance("plus 1 hours, 0 minutes")
        self.quit(program)


if __name__ == "__main__":
    private_mounts.enter()
    unittest.main()
