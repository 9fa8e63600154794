"""What the program costs: its size, the time until it is ready, and nothing that it keeps from run to run."""

import re
import struct
import subprocess
import time
import unittest

from harness import STARS, WINDOWS_BUILD, EndToEndTest, wait_until

PRESSES = 1000
# Of every Windows since 98 and NT 4.
LIBRARIES = {"advapi32", "comctl32", "comdlg32", "gdi32", "kernel32", "msvcrt", "shell32", "user32", "version"}
# What one of these lacks; the program would not even start there.
LATER = {
    "AcquireSRWLockExclusive",
    "AddVectoredExceptionHandler",
    "BlockInput",
    "GetLongPathNameA",
    "GetModuleHandleExW",
    "GetTickCount64",
    "InitOnceExecuteOnce",
    "InitializeConditionVariable",
    "InitializeSRWLock",
    "RemoveVectoredExceptionHandler",
    "SleepConditionVariableCS",
    "VirtualAllocEx",
    "VirtualFreeEx",
}
# Ten lines. Most of them stand in a loop, where the progress bar stands still: drawing it takes longer than a line.
MACRO = """\
DIM x
DO
x=VALUE(1)
IF STRCOMP=x,1
DISPLAYSTATUS=Schritt %1,1
ENDIF
GOTO=Ende
MSG=nie
MARK=Ende
LOOP UNTIL MATRIX.EOF
"""


class ImportsTest(unittest.TestCase):
    def setUp(self):
        command = ["i686-w64-mingw32-objdump", "-p", WINDOWS_BUILD / "QUMAEXP.EXE"]
        self.imports = subprocess.run(command, capture_output=True, text=True, check=True).stdout

    def test_program_needs_no_library_beside_the_system(self):
        libraries = re.findall(r"DLL Name: (\w+)\.dll", self.imports, re.IGNORECASE)
        self.assertLessEqual({library.lower() for library in libraries}, LIBRARIES)

    def test_program_needs_no_function_of_later_systems(self):
        functions = re.findall(r"^\t[0-9a-f]+\t +\d+ +(\w+)$", self.imports, re.MULTILINE)
        self.assertIn("CreateFileA", functions)
        self.assertEqual(set(functions) & LATER, set())


class HeaderTest(unittest.TestCase):
    def test_program_uses_all_addresses_of_a_32_bit_program(self):
        program = (WINDOWS_BUILD / "QUMAEXP.EXE").read_bytes()
        header = struct.unpack_from("<I", program, 0x3C)[0]
        self.assertEqual(program[header : header + 4], b"PE\0\0")
        characteristics = struct.unpack_from("<H", program, header + 22)[0]
        large_address_aware = 0x20
        self.assertTrue(characteristics & large_address_aware)


class ResourcesTest(EndToEndTest):
    def held(self, process):
        """Handles, windows and GDI objects, once painting has come to rest."""

        def counts():
            found = self.probe.counts(process)
            return found.handles, found.windows, found.gdi_objects

        def at_rest():
            first = counts()
            time.sleep(0.3)
            return first if first == counts() else None

        return wait_until(at_rest, "steady counts")

    def assert_no_more(self, before, after):
        # The system's painting keeps an object or two to itself for a while, so the count can also fall.
        for name, earlier, later in zip(("handles", "windows", "GDI objects"), before, after):
            self.assertLessEqual(later, earlier, name)

    def test_program_is_one_small_file(self):
        self.assertLessEqual((WINDOWS_BUILD / "QUMAEXP.EXE").stat().st_size, 1_500_000)

    def test_icon_is_up_within_half_a_second(self):
        # Once is enough, since the machine may be busy with other things.
        def time_to_icon():
            start = time.monotonic()
            self.start_program_asking()
            wait_until(self.icons, "the icon", interval=0.01)
            seconds = time.monotonic() - start
            self._started[-1].kill()
            wait_until(lambda: not self.icons(), "the end of the icon")
            return seconds

        times = []
        while not times or min(times) > 0.5 and len(times) < 10:
            times.append(time_to_icon())
        self.assertLessEqual(min(times), 0.5)

    def test_waiting_costs_no_processor_time(self):
        process = self.start_program()
        self.lay_macro("MSG=1\n")
        self.start_teru()
        self.assert_idle(process)
        # With a finished run on the screen it waits in the same way.
        self.press()
        self.wait_run_ended()
        self.assert_idle(process)

    def assert_idle(self, process):
        """A late repaint costs some time once; what polls costs some in every three seconds."""
        costs = []
        for _ in range(3):
            time.sleep(0.5)
            before = self.probe.counts(process).processor_ms
            time.sleep(3)
            costs.append(self.probe.counts(process).processor_ms - before)
            if costs[-1] == 0:
                return
        self.fail(f"Waiting costs {costs} ms of processor time in three seconds each.")

    def test_a_thousand_presses_leave_nothing_behind(self):
        process = self.start_program()
        self.lay_macro(MACRO)
        self.start_teru()
        for run in range(1, 6):
            self.press()
            self.wait_run_ended(runs=run)
        form = self.main_form(process)
        self.probe.press(form, 5)
        before = self.held(process)
        # The message that a real press makes, without the time that keys and windows take.
        start = time.monotonic()
        for _ in range((PRESSES - 10) // 10):
            self.probe.press(form, 10)
        seconds = time.monotonic() - start
        after = self.held(process)
        self.assertEqual(self.log().count(STARS), 2 * PRESSES)
        self.assertEqual(self.log().count("Sprungmarke (MARK=ENDE) gefunden: 8"), PRESSES)
        self.assert_no_more(before, after)
        print(f"{PRESSES - 10} runs in {seconds:.0f} s ...", end=" ", flush=True)

    def test_dialogs_opened_again_and_again_leave_nothing_behind(self):
        process = self.start_program()
        self.lay_macro("RAISEERROR=Fehler\n", name="QUMAFIBU.MAK")
        self.start_teru()

        def open_and_close():
            self.press()
            self.click_button(self.dialog("Mandant:"), "OK")
            status = self.status_dialog("Fehler")
            self.click_button(status, "A&bbrechen")
            self.probe.wait_gone(status)
            self.choose_from_menu("Protokoll anzeigen")
            form = self.probe.window("TARVEN Datenexport - Protokoll")
            self.answer(form.text, "alt+F4")
            self.probe.wait_gone(form)
            self.choose_from_menu("Info")
            form = self.probe.window("Info")
            self.answer("Info", "Return")
            self.probe.wait_gone(form)
            return self.held(process)

        # The system keeps fonts and brushes of the first rounds for later ones.
        for _ in range(5):
            before = open_and_close()
        for _ in range(5):
            after = open_and_close()
        self.assert_no_more(before, after)


if __name__ == "__main__":
    unittest.main()
