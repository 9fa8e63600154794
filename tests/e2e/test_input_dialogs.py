"""The dialogs with which a macro asks for clients and business years, filled by real keys and clicks."""

import subprocess
import time
import unittest

from harness import CODE_PAGE, RESULTS, STARS, TITLE, WINDOWS_BUILD, EndToEndTest, wait_until

FORMS_PROBE = WINDOWS_BUILD / "FORMSPROBE.EXE"
CLIENT_FILE = "MandantenFibu.txt"
STOPPED = "Die Verarbeitung wurde angehalten."
VALUE_LOGGED = "ShowInputMerFib: Variable wurde befüllt: "


class InputDialogsTest(EndToEndTest):
    def run_macro(self, *lines, **sections):
        self.lay_macro("\n".join(lines) + "\n", **sections)
        self.start_teru()
        self.start_program()
        self.pressed = time.monotonic()
        self.press()

    def keys(self, window, *keys):
        self.wait_in_front(window)
        self.desktop.key(*keys)


class ClientRangeTest(InputDialogsTest):
    def ask(self):
        self.run_macro("SHOWINPUTDLG=Für welche Mandanten?", "MSG=weiter")
        return self.dialog("Für welche Mandanten?", "alle Mandanten")

    def test_a_range_by_keys_alone_and_the_message_on_the_way(self):
        window = self.ask()
        self.keys(window, "Down", "Down", "Tab")
        self.desktop.type("1000")
        self.desktop.key("Tab")
        self.desktop.type("Meier")
        self.desktop.key("Return")
        box = self.dialog("Bitte geben Sie eine numerische Mandantennummer ein!")
        self.keys(box, "Return")
        self.probe.wait_gone(box)
        self.keys(window, "shift+Tab", "Tab")  # comes back with the text selected
        self.desktop.type("2000")
        self.desktop.key("Return")
        self.probe.wait_gone(window)
        self.wait_run_ended()
        self.assertIn("ShowInputDlg (4)", self.log())
        self.assertIn("MSG: weiter", self.log())

    def test_all_clients_by_the_mouse(self):
        window = self.ask()
        self.click_button(window, "alle Mandanten")
        self.click_button(window, "OK")
        self.wait_run_ended()
        self.assertIn("ShowInputDlg (1)", self.log())

    def test_escape_stops_the_run(self):
        window = self.ask()
        self.keys(window, "Escape")
        self.wait_run_ended()
        self.assertEqual(self.log()[-4:], ["ShowInputDlg (-1)", STOPPED, STARS, ""])

    def test_the_dialog_is_above_the_target_and_the_status_dialog(self):
        window = self.ask()
        self.desktop.activate("^TeRu")
        time.sleep(0.5)
        shown = [other.handle for other in self.probe.windows() if other.text == TITLE or "TeRu" in other.text]
        self.assertEqual(shown[0], window.handle)


class ClientYearsTest(InputDialogsTest):
    def ask(self, clients, **sections):
        lines = ["Export vom 14.03.2006", "Nummer;Name;;;;Monat"]
        self.lay(CLIENT_FILE, "\n".join(lines + clients) + "\n")
        self.run_macro(
            "DIM datei",
            f"datei=SHOWINPUTMERFIB(Welche Mandanten?,C:\\QUMA\\{CLIENT_FILE})",
            "MSG=datei",
            "MSG=bis $MERLAMAXYEAR",
            **sections,
        )
        return self.dialog("Welche Mandanten?", "Auswahl")

    def work_file(self):
        line = next(line for line in self.log() if line.startswith(VALUE_LOGGED))
        return self.desktop.host_path(line.removeprefix(VALUE_LOGGED)).read_bytes().decode(CODE_PAGE)

    def test_filled_by_keys_alone_in_the_order_of_the_controls(self):
        window = self.ask(["1001;Müller;;;;Januar", "1002;Meier;;;;April", "1003;Schulz;;;;Januar"])
        self.wait_in_front(window)
        self.desktop.type("x1002")
        self.desktop.key("Tab")
        self.desktop.type("1,003")
        self.desktop.key("Tab", "space", "Tab", "Tab")
        self.desktop.type("2003")
        self.desktop.key("Tab")
        self.desktop.type("2004")
        self.desktop.key("Return")
        self.probe.wait_gone(window)
        self.wait_run_ended()
        self.assertEqual(
            self.work_file().split("\r\n"),
            [
                "1002;01.04.2003;31.03.2004;",
                "1002;01.04.2004;31.03.2005;",
                "1003;01.01.2003;31.12.2003;",
                "1003;01.01.2004;31.12.2004;",
                "",
            ],
        )
        self.assertIn("MSG: bis 2004", self.log())

    def test_settings_are_preset_and_a_bad_period_is_told(self):
        window = self.ask(
            ["1001;Müller;;;;Januar"], MERLA={"WirtschaftsjahrAb": "2005", "WirtschaftsjahrBis": "2004"}
        )
        self.keys(window, "Return")
        box = self.dialog("Bitte prüfen Sie Ihre Eingaben: Der Exportzeitraum ist ungültig!")
        self.keys(box, "Return")
        self.probe.wait_gone(box)
        self.keys(window, "Escape")
        self.probe.wait_gone(window)
        self.wait_run_ended()
        self.assertIn("ShowInputMerFib (-1)", self.log())
        self.assertEqual(self.log()[-3:], [STOPPED, STARS, ""])

    def test_a_hundred_thousand_clients_are_there_within_five_seconds(self):
        clients = [f"{number};Mandant {number} GmbH & Co. KG;;;;April" for number in range(100000)]
        window = self.ask(clients)
        shown = time.monotonic() - self.pressed
        print(f"\n100,000 clients: {shown:.1f} s from the hot key to the dialog")
        self.assertLess(shown, 5)
        self.wait_in_front(window)
        self.desktop.type("500")
        self.desktop.key("Tab")
        self.desktop.type("501")
        self.click_button(window, "Auswahl")
        self.desktop.key("Tab", "Tab")
        self.desktop.type("2004")
        self.desktop.key("Tab")
        self.desktop.type("2004")
        self.desktop.key("Return")
        self.probe.wait_gone(window)
        self.wait_run_ended()
        self.assertEqual(self.work_file(), "500;01.04.2004;31.03.2005;\r\n501;01.04.2004;31.03.2005;\r\n")


class YearsTest(InputDialogsTest):
    """The two lists of years, with the years of the forms probe: from 01.07.1998 to 01.07.2005, the last two checked."""

    def show(self, word, *texts):
        self._told = RESULTS / "input_dialogs.txt"
        with open(self._told, "wb") as told:
            process = self.desktop.program(FORMS_PROBE, word, stdout=told, stderr=subprocess.DEVNULL)
        self._started.append(process)
        window = self.dialog("OK", "Abbrechen", *texts)
        self.bring_to_front(TITLE)
        self.list = self.probe.control(window, class_name="SysListView32")
        return window

    def wait_ended(self):
        wait_until(lambda: b"ended" in self._told.read_bytes(), "the end of the forms probe")

    def checked(self):
        lvm_getitemstate, state_image = 4140, 0xF000
        return [self.probe.send(self.list, lvm_getitemstate, item, state_image) >> 12 == 2 for item in range(8)]

    def written(self, path):
        return self.desktop.host_path(path).read_bytes().decode(CODE_PAGE).split("\r\n")

    def test_the_blank_moves_the_first_year_and_the_combo_box_takes_the_treatment(self):
        window = self.show("input-anl", "GWG in Auswertungen:")
        self.keys(window, "Up", "Down", "Down", "space")
        wait_until(lambda: self.checked() == [False] * 2 + [True] * 6, "the third year and those behind it")
        self.keys(window, "Tab", "Down", "Return")
        self.wait_ended()
        self.assertEqual(
            self.written("C:\\TeRu\\Extern\\Berater-\\TDConv.cfg"), ["[ANL]", "Optionen GWGinAuswertungen=1", ""]
        )

    def test_a_double_click_flips_a_year(self):
        self.show("input-anl")
        left, top, right, bottom = self.list.place
        self.desktop.move((left + right) // 2, top + (bottom - top) // 3)
        before = self.checked()
        self.desktop.command(["xdotool", "click", "--repeat", "2", "--delay", "60", "1"])
        wait_until(lambda: self.checked() != before, "another mark")
        checked = self.checked()
        first = checked.index(True)
        self.assertEqual(checked, [False] * first + [True] * (8 - first))
        self.assertNotIn(first, (0, 6))

    def test_without_a_year_a_message_keeps_the_dialog_open(self):
        window = self.show("input-mer-anl")
        self.keys(window, "Home", "space")
        wait_until(lambda: all(self.checked()), "all years")
        self.keys(window, "space")
        wait_until(lambda: not any(self.checked()), "no year")
        self.keys(window, "Return")
        box = self.dialog("Bitte wählen Sie ein Wirtschaftsjahr aus!")
        self.keys(box, "Return")
        self.probe.wait_gone(box)
        self.assertTrue(self.probe.window(TITLE, where=lambda other: other.handle == window.handle).enabled)
        self.keys(window, "Escape")
        self.wait_ended()

    def test_a_confirmation_writes_the_configuration_and_makes_the_folders(self):
        window = self.show("input-mer-anl")
        self.keys(window, "Return")
        self.wait_ended()
        clients = self.desktop.host_path("C:\\TeRu\\Extern")
        folder = next(clients.iterdir()) / "ANL"
        self.assertEqual(sorted(path.name for path in folder.iterdir()), ["01072004", "01072005", "export.cfg"])
        lines = (folder / "export.cfg").read_bytes().decode(CODE_PAGE).split("\r\n")
        self.assertIn("1WJ Beginn=01.07.2004", lines)
        self.assertIn("2WJ Ende=30.06.2006", lines)
        self.assertIn("2WJ IAS/IFRS=0", lines)


class YearsAtHighResolutionTest(YearsTest):
    dpi = 144


if __name__ == "__main__":
    unittest.main()
