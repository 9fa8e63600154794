"""Memory that runs out: the run fails with a text, and the program goes on."""

import pathlib
import resource
import unittest

from harness import COMPLETED, PATIENCE, RUN_PATIENCE, STARS, TITLE, EndToEndTest, wait_until

LOG_TITLE = "TARVEN Datenexport - Protokoll"
LEFT_OUT = "(Der Anfang des Protokolls hat in dieser Anzeige keinen Platz."
MEGABYTE = 1_000_000
# Seconds; the program fills some hundred megabytes.
MEMORY_PATIENCE = 2 * PATIENCE


class MemoryTest(EndToEndTest):
    def host_process(self):
        """The process of this machine that runs the program."""
        for entry in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                command = (entry / "cmdline").read_bytes()
            except OSError:
                continue  # it has ended meanwhile
            if command.startswith(str(self.folder / "QUMAEXP.EXE").encode()):
                return int(entry.name)
        self.fail("the program does not run")

    def leave_memory(self, megabytes):
        """From now on the program gets so much more memory and none beyond it."""
        process = self.host_process()
        status = pathlib.Path(f"/proc/{process}/status").read_text()
        held = next(int(line.split()[1]) * 1024 for line in status.splitlines() if line.startswith("VmData"))
        limit = held + megabytes * MEGABYTE
        resource.prlimit(process, resource.RLIMIT_DATA, (limit, limit))

    def lay_sparse(self, name, size, end=b""):
        """A file that has this size and takes next to no room on the disk."""
        with open(self.folder / name, "r+b" if (self.folder / name).exists() else "wb") as file:
            file.seek(size)
            file.write(end)
            file.truncate()

    def fail_run(self, text):
        """Presses, waits for the failure and closes its dialog."""
        self.press()
        self.wait_log(text, seconds=MEMORY_PATIENCE)
        status = self.status_dialog(text)
        self.click_button(status, "A&bbrechen")
        self.probe.wait_gone(status)

    def assert_usable(self):
        """A further run of the same program passes, and its menu answers."""
        self.lay_macro("MSG=danach\n")
        self.press()
        self.wait_log("MSG: danach", seconds=RUN_PATIENCE)
        self.wait_log(COMPLETED, seconds=RUN_PATIENCE)
        self.answer(TITLE, "Return")
        self.choose_from_menu("Info")
        self.answer("Info", "Return")
        self.assertEqual(len(self.icons()), 1)

    def test_a_log_of_600_megabytes_opens(self):
        self.start_program()
        self.start_teru()
        end = "".join(f"Zeile {i}\r\n" for i in range(1, 1001))
        self.lay_sparse("QUMAEXP.LOG", 600 * MEGABYTE, ("\r\n" + end).encode())
        self.choose_from_menu("Protokoll anzeigen")
        form = self.probe.window(LOG_TITLE)
        shown = "\n".join(self.probe.texts(form)).replace("\r\n", "\n").replace("\r", "\n")
        self.assertTrue(shown.startswith(LEFT_OUT), shown[:200])
        self.assertIn(end.replace("\r\n", "\n").strip(), shown)
        self.answer(form.text, "alt+F4")
        self.probe.wait_gone(form)
        self.lay_macro("MSG=danach\n")
        self.press()
        wait_until(lambda: self.end_of_log().endswith(f"MSG: danach\r\n{COMPLETED}\r\n{STARS}\r\n"), "the run")

    def end_of_log(self):
        with open(self.folder / "QUMAEXP.LOG", "rb") as file:
            file.seek(600 * MEGABYTE)
            return file.read().decode("cp1252")

    def test_a_macro_of_900_megabytes_fails(self):
        self.start_program()
        self.start_teru()
        self.lay_macro("MSG=nie\n")
        self.lay_sparse("PROBE.MAK", 900 * MEGABYTE, b"\r\n")
        self.leave_memory(300)
        self.fail_run("Fehler in Funktion LoadFile:Nicht genügend Speicher")
        self.assertNotIn("MSG: nie", self.log())
        self.assert_usable()

    def test_variables_without_end_fail_the_run(self):
        self.start_program()
        self.start_teru()
        self.lay_macro("DIM " + "x" * MEGABYTE + "\nLOOP UNTIL COUNT\n")
        self.leave_memory(300)
        self.fail_run("Fehler in Funktion MakroAction:Nicht genügend Speicher")
        self.assert_usable()


if __name__ == "__main__":
    unittest.main()
