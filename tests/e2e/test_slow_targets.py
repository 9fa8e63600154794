"""Keys for a target that takes its time: all of them, in order, before the next verb, and none for anybody else."""

import os
import time
import unittest

from harness import COMPLETED, FOLDER, EndToEndTest
from wine_desktop import CODE_PAGE, WINDOWS_BUILD, wait_until

TITLE = "Langsames Fenster"
TEXT = "Die GmbH & Co zahlt 1.234,56 an Firma Berger, Postfach 12, 30060 Halle.."
STOPPED = "Die Verarbeitung wurde angehalten."
# More of them by hand.
ROUNDS = int(os.environ.get("E2E_ROUNDS", "1"))
FIELD = f"7,{TITLE},Edit"
READY = f"BUTTONCLICK=8,{TITLE},,Fertig,Button\n"


class SlowTargetTest(EndToEndTest):
    def start_slow(self, key_time=0, handler=0):
        arguments = ("--key-time", str(key_time), "--handler", str(handler), "--log", FOLDER + "\\slow.log")
        self.start(WINDOWS_BUILD / "SLOW.EXE", *arguments)
        self.window = self.probe.window(TITLE)

    def journal(self):
        path = self.folder / "slow.log"
        return path.read_bytes().decode(CODE_PAGE).splitlines() if path.is_file() else []

    def typed(self):
        codes = [int(line.split()[1]) for line in self.journal() if line.startswith("Zeichen ")]
        return bytes(codes).decode(CODE_PAGE)

    def wait_pressed(self, times):
        """What stood in the field whenever the button was pressed, which is posted."""

        def pressed():
            return [line for line in self.journal() if line.startswith("Fertig: ")]

        wait_until(lambda: len(pressed()) >= times, "the button")
        return pressed()

    def run_macro(self, text, outcome=COMPLETED, times=1):
        self.lay_macro(text, fragment="Langsames")
        if times == 1:
            self.start_program()
        self.press(TITLE)
        self.wait_log(outcome, times, seconds=180)

    def expect_whole(self, key_time, lines, text=TEXT):
        self.start_slow(key_time)
        for times in range(1, ROUNDS + 1):
            self.run_macro(lines + READY, times=times)
            ready = self.wait_pressed(times)
            self.assertEqual(ready[times - 1 :], ["Fertig: " + text], f"round {times}")
            self.click_button(self.status_dialog(), "&OK")

    def test_sendkey_at_20_milliseconds_a_key(self):
        self.expect_whole(20, f"SETFOCUS={TITLE}\nSENDKEY='{TEXT}'\n")

    def test_sendkey_at_80_milliseconds_a_key(self):
        self.expect_whole(80, f"SETFOCUS={TITLE}\nSENDKEY='{TEXT}'\n")

    def test_sendkey2_at_300_milliseconds_a_key(self):
        self.expect_whole(300, f"SENDKEY2='{TEXT}',{FIELD}\n")

    def test_sendkey2window_at_80_milliseconds_a_key(self):
        self.expect_whole(80, f"SENDKEY2WINDOW='{TEXT}',{TITLE}\n")

    def test_a_held_shift_lasts_over_the_handling_of_messages(self):
        self.expect_whole(300, f"SENDKEY2=+(abcdefghijklmnopqrstuvwxyz),{FIELD}\n", "ABCDEFGHIJKLMNOPQRSTUVWXYZ")

    def test_keys_wait_for_those_of_the_verb_before(self):
        self.expect_whole(20, f"SETFOCUS={TITLE}\nSENDKEY='{TEXT}'\nSENDKEY2=!,{FIELD}\n", TEXT + "!")
        self.assertEqual(self.typed()[: len(TEXT) + 1], TEXT + "!")

    def test_setfocusctl_loses_no_key_and_keeps_the_window_in_front(self):
        lines = f"SETFOCUS={TITLE}\nSENDKEY='{TEXT}'\nSETFOCUSCTL=Edit,,0\nSENDKEY={{END}}!\n"
        self.expect_whole(20, lines, TEXT + "!")

    def test_a_handler_of_twelve_seconds_holds_the_verb(self):
        self.start_slow(handler=12000)
        for times in range(1, ROUNDS + 1):
            self.run_macro(f"SENDKEY2={{F5}}xyBb,{FIELD}\n" + READY, times=times)
            ready = self.wait_pressed(times)
            self.assertEqual(ready[times - 1 :], ["Fertig: xyBb"])
            self.assertEqual(self.log().count("<Cancel>"), 0)
            self.click_button(self.status_dialog(), "&OK")

    def test_a_click_on_cancel_ends_the_wait_for_a_target_that_hangs(self):
        self.start_slow(handler=15000)
        self.lay_macro(f"SENDKEY2={{F5}}xyb~ b,{FIELD}\nDISPLAYSTATUS=weiter\n", fragment="Langsames")
        self.start_program()
        self.press(TITLE)
        wait_until(lambda: "F5 beginnt" in self.journal(), "the handler")
        dialog = self.status_dialog()
        wait_until(lambda: self.probe.x_window(dialog.handle) in self.desktop.x_windows("."), "the dialog to be seen")
        place = self.probe.control(dialog, text="A&bbrechen").middle
        time.sleep(2)
        self.desktop.click(*place)
        self.wait_log(STOPPED)
        self.assertNotIn("F5 endet", self.journal())
        self.assertEqual(self.log().count("<Cancel>"), 1)
        self.probe.wait_gone(dialog)
        wait_until(lambda: "F5 endet" in self.journal(), "the end of the handler")
        self.assertEqual(self.typed(), "")

    def test_keys_for_the_status_dialog_operate_nothing(self):
        self.start_slow()
        self.run_macro("SETFOCUS=TARVEN Datenexport\nWAIT=300\nSENDKEY=%b\nSENDKEY=~ {ESC}\nSENDKEY={SPACE}\n")
        self.assertEqual(self.log().count("<Cancel>"), 0)
        dialog = self.status_dialog()
        self.wait_in_front(dialog)
        self.desktop.key("Return")
        self.probe.wait_gone(dialog)


if __name__ == "__main__":
    unittest.main()
