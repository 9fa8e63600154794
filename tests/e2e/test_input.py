"""Keys, clicks and the clipboard, by what the stand-in received and what lies on the disk."""

import shutil
import time
import unittest

from harness import COMPLETED, RESULTS, ROOT, EndToEndTest
from wine_desktop import CODE_PAGE, wait_until

ID_MENU_PAYMENTS = 2105
ID_MENU_STATEMENT = 2106
ID_STATEMENT = 2401
ID_SEARCH = 2402

CAPTION = "TeRu Zahlungsverkehr [Stadtsparkasse 30060010 2005114 EUR]"
SAVED = "Die Zwischenablage wurde erfolgreich gespeichert."
SEARCH = "2402,TeRu Zahlungsverkehr,ThunderRT6Textbox"


COPY = "SENDKEY2=^c,2401,TeRu Zahlungsverkehr,SysListView32\nWAITFORCLIPBOARD\n"
SAVE = "SAVECLIPBOARDZVK=C:\\TeRu\\u.csv,0\n"
BUSY = "Zwischenablage kann nicht geöffnet werden"
TABLE = "Datum\r\n03.01.2005\r\n"


class InputTest(EndToEndTest):
    def setUp(self):
        super().setUp()
        self.open_payments()

    def open_payments(self, **options):
        self.main, _ = self.start_teru(**options)
        self.probe.post(self.main, 273, ID_MENU_PAYMENTS)
        self.window = self.probe.window(CAPTION)
        self.field = self.probe.control(self.window, ID_SEARCH)

    def run_macro(self, text, outcome=COMPLETED, press=CAPTION):
        self.lay_macro(text, fragment="TeRu")
        self.start_program()
        self.press(press)
        self.wait_log(outcome)

    def journal(self):
        path = self.folder / "teru.log"
        return path.read_bytes().decode(CODE_PAGE).splitlines() if path.is_file() else []

    def received(self, kind):
        """What the field that takes keys has written down of a kind."""
        mark = f"Suche: {kind} "
        return [line.partition(mark)[2] for line in self.journal() if mark in line]

    def clicks(self):
        return [line.partition("Klick ")[2] for line in self.journal() if "Klick " in line]

    def typed(self):
        return bytes(int(code) for code in self.received("Zeichen")).decode(CODE_PAGE)


class KeysTest(InputTest):
    def test_text_with_umlauts_arrives_whole(self):
        self.run_macro(f"SENDKEY2='Müller & Söhne, 12,50 € ßéÄ',{SEARCH}\n")
        self.assertEqual(self.typed(), "Müller & Söhne, 12,50 € ßéÄ")

    def test_the_field_refuses_a_text_that_is_sent_as_a_message(self):
        self.lay_macro("SETTEXT=Müller,2402,TeRu Zahlungsverkehr,0,ThunderRT6Textbox\n", fragment="TeRu")
        self.start_program()
        self.press(CAPTION)
        self.status_dialog()
        wait_until(lambda: any("Text abgewiesen" in line for line in self.journal()), "the refusal")
        self.assertEqual(self.typed(), "")

    def test_modifiers_groups_names_and_counts(self):
        self.run_macro(f"SENDKEY2=^{{a}}+{{TAB 3}}%{{F5}}{{ENTER}}^(xy)~{{DEL}},{SEARCH}\n")
        self.assertEqual(
            self.received("Taste"), ["^65", "+9", "+9", "+9", "%116", "13", "^88", "^89", "13", "46", "232"]
        )

    def test_space_alone_is_a_blank_and_inside_a_string_cannot_be_sent(self):
        self.run_macro(f"SENDKEY2=a,{SEARCH}\nSENDKEY2={{Space}},{SEARCH}\nSENDKEY2=b{{SPACE}}c,{SEARCH}\n")
        self.assertEqual(self.typed(), "a ")

    def test_sendkey_goes_to_whatever_has_the_focus(self):
        self.run_macro(f"SENDKEY2=x,{SEARCH}\nSETFOCUS=\nWAIT=500\nSENDKEY=abc\n")
        self.assertEqual(self.typed(), "xabc")

    def test_sendkey2window_goes_to_the_focus_of_its_window(self):
        self.run_macro(f"SENDKEY2=x,{SEARCH}\nSENDKEY2WINDOW=äöü,TeRu Zahlungsverkehr\n")
        self.assertEqual(self.typed(), "xäöü")

    def test_alt_f4_closes_the_window(self):
        self.run_macro(f"SENDKEY2=%{{F4}},{SEARCH}\n")
        self.probe.wait_gone(self.window)

    def test_the_status_dialog_is_on_top_again(self):
        self.run_macro(f"SENDKEY2=abc,{SEARCH}\nSENDKEY2={{TAB,{SEARCH}\n")
        dialog = self.status_dialog()
        self.assertEqual(self.probe.windows()[0].handle, dialog.handle)


    def test_a_string_that_cannot_be_sent_leaves_the_queues_parted_and_the_status_dialog_on_top(self):
        self.run_macro(f"SENDKEY2=a{{SPACE}}b,{SEARCH}\n")
        dialog = self.status_dialog()
        self.assertEqual(self.typed(), "")
        self.desktop.activate("Zahlungsverkehr")
        wait_until(lambda: self.probe.focus(self.window) == self.field.handle, "the focus of the field")
        self.assertNotEqual(self.probe.focus(dialog), self.field.handle)
        self.assertEqual(self.probe.windows()[0].handle, dialog.handle)


class ClicksTest(InputTest):
    def test_a_click_by_window_offset_lands_on_its_pixel(self):
        left, top, _, bottom = self.probe.window(CAPTION).place
        # The scale of absolute moves ends at 65,535 and the system divides by 65,536: some pixels are missed by one.
        offset = next(y for y in range(bottom - top - 12, 0, -1) if round((top + y) / 768 * 65535) * 768 // 65536 == top + y)
        verb = f"MOUSECLICKBYWINDOWOFFSET={CAPTION}"
        # The first click brings the window to the front, which takes time.
        self.run_macro(f"{verb},LEFT,10,{offset}\nWAIT=500\n{verb},MIDDLE,11,{offset}\n")
        wait_until(lambda: len(self.clicks()) == 2, "the clicks")
        self.assertEqual(self.clicks(), [f"links: {left + 10}/{top + offset}", f"rechts: {left + 11}/{top + offset}"])

    def test_a_click_lands_where_the_pointer_was_moved(self):
        left, _, _, bottom = self.window.place
        x, y = left + 10, bottom - 12
        self.run_macro(f"MOUSEMOVE={x},{y}\nMOUSECLICK=right\nMOUSEMOVE={x + 1},{y - 1}\nMOUSECLICK=left\n")
        wait_until(lambda: len(self.clicks()) == 2, "the clicks")
        self.assertEqual(self.clicks(), [f"rechts: {x}/{y}", f"links: {x + 1}/{y - 1}"])
        moved = [line for line in self.log() if line.startswith("Maus")]
        self.assertEqual(
            moved,
            [
                f"Maus an Koordinate bewegt: {x}/{y}",
                "Maustaste gedrückt: 2",
                f"Maus an Koordinate bewegt: {x + 1}/{y - 1}",
                "Maustaste gedrückt: 1",
            ],
        )

    def test_a_click_into_a_control_gives_it_the_focus(self):
        elsewhere = "SENDKEY2={HOME},2401,TeRu Zahlungsverkehr,SysListView32\n"
        self.run_macro(elsewhere + "MOUSEMOVETOCTL=thunderrt6textbox\nMOUSECLICK=LEFT\nWAIT=300\nSENDKEY=abc\n")
        self.assertEqual(self.typed(), "abc")
        left, top, _, _ = self.field.place
        self.assertIn(f"Maus an Koordinate bewegt: {left + 5}/{top + 5}", self.log())
        self.assertIn(f"Die Maus wurde positioniert. ({self.field.handle})", self.log())


class ClipboardTest(InputTest):
    def test_the_macro_saves_two_statements_into_one_file(self):
        for name in ("QUMAEXP.INI", "QUMAZVK.MAK"):
            shutil.copy(ROOT / "demo" / name, self.folder)
        self.start_program()
        self.press(CAPTION)
        self.wait_log(COMPLETED)
        saved = self.desktop.host_path("C:\\TeRu").rglob("Umsaetze.csv")
        lines = next(saved).read_bytes().decode(CODE_PAGE).split("\r\n")
        self.assertEqual(len(lines), 8)
        self.assertEqual(
            lines[0],
            '"03.01.2005";"Miete Werkstatt Januar";;;;;;;;;;;;"Dauerauftrag";"-1480,00";"EUR";"03.01.2005";;2005114;30060010',
        )
        self.assertEqual(
            lines[1],
            '"10.01.2005";"Rechnung 2005-0007 vom 04.0";"1.2005 Kundennummer 10014 T";"reppe Buche massiv geölt";;;;;;;;;;'
            '"Gutschrift";"12345,67";"EUR";"10.01.2005";;2005114;30060010',
        )
        self.assertEqual(lines[4].split(";")[:3], ['"31.01.2005"', '""', ""])
        self.assertTrue(lines[6].endswith(";;771203;20070024"))
        self.assertEqual(lines[7], "")

    def test_the_window_of_statements_names_the_account(self):
        self.probe.post(self.main, 273, ID_MENU_STATEMENT)
        self.probe.window("Umsätze BLZ: 20070024 Kto: 771203 EUR")
        self.run_macro(
            "SENDKEY2=^c,2401,Umsätze BLZ,SysListView32\nWAITFORCLIPBOARD\nSAVECLIPBOARDZVK=C:\\TeRu\\u.csv,0\n",
            press=self.main.text,
        )
        lines = self.desktop.host_path("C:\\TeRu\\u.csv").read_bytes().decode(CODE_PAGE).split("\r\n")
        self.assertEqual([line[-17:] for line in lines], [";;771203;20070024"] * 2 + [""])

    def test_a_missing_folder_fails_the_run(self):
        self.run_macro(
            "SENDKEY2=^c,2401,TeRu Zahlungsverkehr,SysListView32\nWAITFORCLIPBOARD\nSAVECLIPBOARD=C:\\fehlt\\u.csv\n",
            "Fehler in Funktion SaveClipboard:Pfad nicht gefunden",
        )

    def test_a_target_that_is_a_folder_fails_and_the_temporary_file_is_gone(self):
        target = self.desktop.host_path("C:\\TeRu\\u.csv")
        target.mkdir()
        self.run_macro(COPY + SAVE, "Fehler in Funktion SaveClipboardZVK:Zugriff verweigert")
        self.assertFalse(target.with_name("u.csv.tmp").exists())

    def save_over_held_file(self, mode):
        target = self.desktop.host_path("C:\\TeRu\\u.csv")
        target.write_bytes(b"alt")
        self.probe.put_on_clipboard(TABLE)
        with self.probe.holding_file("C:\\TeRu\\u.csv"):
            fault = "Fehler in Funktion SaveClipboardZVK:Zugriff verweigert"
            self.run_macro(f"SAVECLIPBOARDZVK=C:\\TeRu\\u.csv,{mode}\n", fault)
        self.assertEqual(target.read_bytes(), b"alt")
        self.assertFalse(target.with_name("u.csv.tmp").exists())

    def test_a_target_in_use_is_not_written_over_and_the_temporary_file_is_gone(self):
        self.save_over_held_file("0")

    def test_a_target_in_use_is_not_appended_to_and_the_temporary_file_is_gone(self):
        self.save_over_held_file("1")

    def test_a_clipboard_that_another_program_holds_fails_and_the_temporary_file_stays(self):
        self.probe.put_on_clipboard(TABLE)
        with self.probe.holding_clipboard():
            self.run_macro(SAVE, "Fehler in Funktion SaveClipboardZVK:" + BUSY)
        self.assertEqual(self.desktop.host_path("C:\\TeRu\\u.csv.tmp").read_bytes(), b"")
        self.assertFalse(self.desktop.host_path("C:\\TeRu\\u.csv").exists())

    def test_a_text_ends_at_its_first_nul(self):
        self.probe.put_on_clipboard("a\tb\0c\td\r\n")
        self.run_macro("SAVECLIPBOARD=C:\\TeRu\\u.csv\n")
        self.assertEqual(self.desktop.host_path("C:\\TeRu\\u.csv").read_bytes(), b'"a";"b";\r\n')


class AccountQuestionTest(InputTest):
    """Neither the main window nor another one names the account, so the user is asked for it."""

    def ask(self):
        self.probe.put_on_clipboard(TABLE)
        self.lay_macro(SAVE, fragment="TeRu -")
        self.start_program()
        self.press(self.main.text)
        window = self.dialog("Bitte geben Sie die Konto-Nr und BLZ ein", "Konto:", "BLZ:", "OK", "Abbrechen")
        self.wait_in_front(window)
        return window

    def saved(self):
        self.wait_log(COMPLETED)
        return self.desktop.host_path("C:\\TeRu\\u.csv").read_bytes().decode(CODE_PAGE)

    def test_account_and_bank_code_by_keys_alone(self):
        window = self.ask()
        self.desktop.type("2005114")
        self.desktop.key("Tab")
        self.desktop.type("300 600-10")
        self.desktop.screenshot(RESULTS / "account-question.png")
        self.desktop.key("Return")
        self.probe.wait_gone(window)
        self.assertEqual(self.saved(), '"03.01.2005";;2005114;300 600-10\r\n')
        self.assertIn("Konto / Blz Dialog", self.log())

    def test_a_cancel_leaves_both_empty(self):
        window = self.ask()
        self.desktop.type("2005114")
        self.desktop.key("Escape")
        self.probe.wait_gone(window)
        self.assertEqual(self.saved(), '"03.01.2005";;;\r\n')
        self.assertNotIn("Konto / Blz Dialog", self.log())

    def test_tab_goes_from_field_to_field_to_the_buttons(self):
        window = self.ask()
        order = []
        for _ in range(5):
            order.append(self.probe.focus(window))
            self.desktop.key("Tab")
        controls = sorted(self.probe.controls(window), key=lambda control: (control.place[1], control.place[0]))
        fields = [control.handle for control in controls if control.class_name.upper() == "EDIT"]
        buttons = [self.probe.control(window, text=text).handle for text in ("OK", "Abbrechen")]
        self.assertEqual(order, [*fields, *buttons, fields[0]])

    def test_the_question_is_above_the_target_and_the_status_dialog(self):
        window = self.ask()
        self.desktop.activate("^TeRu -")
        time.sleep(0.5)
        self.assertEqual(self.probe.windows()[0].handle, window.handle)


if __name__ == "__main__":
    unittest.main()
