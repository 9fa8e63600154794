"""The second application's stand-in, its macros, and the walk over the client list, from real key presses."""

import configparser
import shutil
import unittest

from client_walk import MENU_CLIENTS, ClientWalkTest
from harness import CODE_PAGE, DESTINATION, FOLDER, ROOT, WINDOWS_BUILD, EndToEndTest
from probe import WM_COMMAND

MERLA = "MERLA 2100 - Schreinerei Grünbärtl & Töchter GmbH"
# The business years of the stand-in's client: currency, first and last day, then tax law, calculation, commercial law
# and IAS/IFRS.
YEARS = [
    ("DEM", "01.01.2001", "31.12.2001", "1", "0", "0", "0"),
    ("EUR", "01.01.2002", "31.12.2002", "1", "0", "1", "0"),
    ("EUR", "01.01.2003", "31.12.2003", "1", "1", "1", "0"),
    ("EUR", "01.01.2004", "30.06.2004", "1", "0", "1", "0"),
    ("EUR", "01.07.2004", "30.06.2005", "1", "1", "1", "1"),
]
KEYS = ("Waehrung", "Beginn", "Ende", "Steuerrecht", "Kalkulation", "Handelsrecht", "IAS/IFRS")
ASK = "Welche Wirtschaftsjahre des Mandanten 4711 sollen ausgegeben werden?"

# What the rows hold is seen in the file that the dialog writes for the years that are checked.
READ_YEARS = f"""MENUCLICK=3101,%MAINWINDOW%
WAITFORWINDOW=Wirtschaftsjahr wechseln,1,,,0
CREATEMERLAMATRIX={{combo}},Wirtschaftsjahr wechseln,1,ThunderRT6ComboBox,
CREATEPROTOCOL='{DESTINATION}\\rows.txt'
IF MERMATRIX.CHECKED
ADDPROTOCOL='vorab $MERMATRIXJAHRBIS'
ELSE
ADDPROTOCOL='offen $MERMATRIXJAHRBIS'
ENDIF
SHOWINPUTMERANL=Welche Wirtschaftsjahre des Mandanten %1 sollen ausgegeben werden?,4711
DO
IF MERMATRIX.CHECKED
ADDPROTOCOL='$MERMATRIXJAHRBIS in $MERMATRIXPATH'
ENDIF
LOOP UNTIL MERMATRIX.EOF
CLOSEPROTOCOL
"""


class MerlaTest(EndToEndTest):
    def start_merla(self, version="2100", *arguments):
        self.start(WINDOWS_BUILD / "MERLA.EXE", "--version", version, "--log", FOLDER + "\\merla.log", *arguments)
        return self.probe.window(MERLA.replace("2100", version))

    def journal(self):
        return self.lines(FOLDER + "\\merla.log")

    def lines(self, windows_path):
        return self.desktop.host_path(windows_path).read_bytes().decode(CODE_PAGE).splitlines()

    def lay_demo(self, *names):
        for name in ("QUMAEXP.INI", *names):
            shutil.copy(ROOT / "demo" / name, self.folder)

    def dates_received(self, *arguments):
        """Writes two dates into the fields of the stand-in's period and yields the texts that their boxes got."""
        main = self.start_merla("2100", *arguments)
        self.probe.post(main, WM_COMMAND, 3202)
        self.probe.window("Buchungsexport")
        self.lay_macro("SETMERLADATE=01.02.2003,31.12.2004,Buchungsexport,42,0,1\n", fragment="Buchungsexport")
        self.start_program()
        self.press("Buchungsexport")
        self.wait_run_ended()
        return [line for line in self.journal() if line.startswith("Text 42/")]

    def test_dates_arrive_in_the_boxes_of_their_fields(self):
        expected = ["Text 42/1/3: 01", "Text 42/1/4: 02", "Text 42/1/2: 2003"]
        expected += ["Text 42/2/3: 31", "Text 42/2/4: 12", "Text 42/2/2: 2004"]
        self.assertEqual(self.dates_received(), expected)

    def test_fields_of_month_and_year_get_no_day(self):
        expected = ["Text 42/1/4: 02", "Text 42/1/2: 2003", "Text 42/2/4: 12", "Text 42/2/2: 2004"]
        self.assertEqual(self.dates_received("--dates", "month"), expected)
        refused = [line.split(" ", 2)[2] for line in self.log() if line.startswith("<< ")]
        self.assertEqual(refused, ["01 Index: 0Dayval: ", "31 Index: 1Dayval: "])

    def choose_years_from(self, row):
        """Clicks the check box of a row, which takes all later years with it, and confirms."""
        dialog = self.dialog(ASK)
        items = self.probe.control(dialog, class_name="SysListView32")
        left, top, _, _ = items.place
        self.desktop.click(left + 12, top + 26 + 14 * row)
        self.click_button(dialog, "OK")

    def chosen_years(self):
        """The rows of the file that the dialog has written."""
        file = self.desktop.host_path(DESTINATION + "\\Extern\\4711\\ANL") / "export.cfg"
        written = configparser.ConfigParser()
        written.read_string(file.read_bytes().decode(CODE_PAGE))
        client = written["Mandantendaten"]
        numbers = range(1, 1 + sum(key.endswith("wj beginn") for key in client))
        return [tuple(client[f"{number}WJ {key}"] for key in KEYS) for number in numbers]

    def read_layout(self, version, combo, **settings):
        """Reads the years of this version's dialog and compares the rows."""
        self.lay_macro(READ_YEARS.format(combo=combo), fragment="MERLA ", **settings)
        self.start_merla(version)
        self.start_program()
        self.press(MERLA.replace("2100", version))
        self.choose_years_from(0)
        self.wait_run_ended()
        self.assertEqual(self.chosen_years(), YEARS)
        rows = self.lines(DESTINATION + "\\rows.txt")
        expected = ["offen 31.12.2001"]
        folder = DESTINATION + "\\Extern\\4711\\ANL\\"
        expected += [f"{year[2]} in {folder}{year[1].replace('.', '')}" for year in YEARS]
        self.assertEqual(rows, expected)
        self.assertNotIn("Fehler: Währung konnte nicht gelesen werden.", self.log())

    def test_years_are_read_from_the_dialog_of_version_260(self):
        self.read_layout("260", 9, MERLA={"Version": "260"})

    def test_years_are_read_from_the_dialog_of_version_280(self):
        self.read_layout("280", 9, MERLA={"Version": "280"})

    def test_years_are_read_from_the_dialog_of_version_2100_where_the_settings_name_no_places(self):
        self.read_layout("280", 9, MERLA={"Version": "2100"})  # the dialog as it was before 2100

    def test_years_are_read_from_the_dialog_of_version_2100_at_the_places_of_the_settings(self):
        places = {
            "MatrixJahrVonBis": "Wirtschaftsjahr wechseln;Bearbeitungsjahr;ThunderRT6Frame;61",
            "MatrixWährung": "71;ThunderRT6ComboBox;70;ThunderRT6Frame",
        }
        boxes = {"Steuerrecht": 81, "Kalkulation": 82, "Handelsrecht": 83, "IASIFRS": 84}
        for name, identity in boxes.items():
            places[f"MatrixCheck{name}"] = f"{identity};ThunderRT6CheckBox;80;ThunderRT6Frame"
        self.read_layout("2100", 60, MERLA={"Version": "2100", **places})

    def test_years_are_read_from_the_old_dialog_where_no_version_is_set(self):
        self.read_layout("250", 9)

    def test_assets_of_the_years_from_the_third_on_are_exported_from_version_280(self):
        self.lay_demo("MERLA280.MAK")
        ini = self.folder / "QUMAEXP.INI"
        ini.write_bytes(ini.read_bytes().replace(b"Version=2100", b"Version=280"))
        self.start_merla("280", "--tick", "20")
        self.start_program()
        self.press(MERLA.replace("2100", "280"))
        self.choose_years_from(2)
        self.wait_run_ended()
        self.assertEqual(self.chosen_years(), YEARS[2:])
        files = [f"{DESTINATION}\\Extern\\4711\\ANL\\{year[1].replace('.', '')}\\Anlagen.csv" for year in YEARS[2:]]
        protocol = self.lines(DESTINATION + "\\Extern\\Anlagen.txt")
        self.assertEqual(protocol, [f"Wirtschaftsjahr bis {year[2]}: {file}" for year, file in zip(YEARS[2:], files)])
        for file in files:
            self.assertGreater(self.desktop.host_path(file).stat().st_size, 0)

    def test_assets_of_the_chosen_years_are_exported(self):
        self.lay_demo("MERLA2100.MAK")
        self.start_merla("2100", "--tick", "20")
        self.start_program()
        self.press(MERLA)
        self.choose_years_from(0)
        self.wait_run_ended()
        folder = self.desktop.host_path(DESTINATION + "\\Extern\\4711\\ANL")
        written = sorted(path.parent.name for path in folder.rglob("Anlagen.csv"))
        self.assertIn("01072004", written)
        self.assertIn("Matrix erfolgreich aufgebaut", self.log())

    def test_postings_of_listed_clients_are_exported_year_by_year(self):
        self.lay_demo("MERLAFIB2100.MAK")
        extern = self.desktop.host_path(DESTINATION + "\\Extern")
        extern.mkdir()
        clients = "Kopf\r\nKopf\r\n1001;Immergrün;;;;Januar;\r\n1002;Höfner;;;;April;\r\n1999;Niemand;;;;Januar;\r\n"
        (extern / "MandantenFibu.txt").write_bytes(clients.encode(CODE_PAGE))
        main = self.start_merla("2100", "--tick", "20")
        self.probe.post(main, WM_COMMAND, 3202)
        self.probe.window("Buchungsexport")
        self.start_program()
        self.press("Buchungsexport")
        dialog = self.dialog("Bitte wählen Sie die Mandanten und den Zeitraum.")
        self.click_button(dialog, "OK")
        self.wait_run_ended()
        written = sorted(path.relative_to(extern).as_posix() for path in extern.rglob("Buchungen.csv"))
        expected = [f"{client}/FIBU/{year}/Buchungen.csv" for client in (1001, 1002) for year in (2003, 2004, 2005)]
        self.assertEqual(written, expected)

    def test_income_tax_of_all_clients_is_exported_for_each_year(self):
        self.lay_demo("QUMAEST.MAK")
        main, _ = self.start_teru("--tick", "20")
        self.probe.post(main, WM_COMMAND, MENU_CLIENTS)
        self.probe.window("Mandant öffnen")
        self.start_program()
        self.press("Mandant öffnen")
        dialog = self.dialog("alle Mandanten")
        self.click_button(dialog, "alle Mandanten")
        self.click_button(dialog, "OK")
        self.wait_run_ended()
        files = list(self.desktop.host_path(DESTINATION + "\\Extern").rglob("ESt-*.csv"))
        self.assertEqual(len(files), 8 * 3)


class WalkTest(ClientWalkTest):
    def test_each_client_of_the_list_is_visited_once_for_each_year(self):
        dialog = self.ask_for_clients(15, years="2004,2005")
        self.walk_all(dialog)
        self.wait_run_ended()
        visited = self.desktop.host_path(DESTINATION + "\\clients.txt").read_bytes().decode(CODE_PAGE).splitlines()
        # The stand-in numbers its clients from 10000.
        self.assertEqual(visited, [f"{number} {year}" for number in range(10000, 10015) for year in (2004, 2005)])


if __name__ == "__main__":
    unittest.main()
