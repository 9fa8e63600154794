"""The stand-in's dialog "Anlagenbuchhaltung", and the macro that exports its years one by one."""

import shutil
import time
import unittest

from harness import CAPTION, CODE_PAGE, COMPLETED, ROOT, STARS, EndToEndTest, settings, wait_until
from probe import WM_COMMAND

MENU_ASSETS, AREA, YEAR, START, FOLDER_BOX = 2102, 2120, 2121, 2122, 2124
DIALOG = "Anlagenbuchhaltung"
MACRO = "QUMAANL.MAK"
ASSET_CAPTION = CAPTION.replace("Finanzbuchhaltung", DIALOG)
HINT = "Die Inventarauswahl für die Arbeit mit dem Bereich Steuerrecht gilt, bis ein anderer Bereich gewählt wird."


class AssetTest(EndToEndTest):
    def open_dialog(self):
        main, _ = self.start_teru("--tick", "5")
        self.probe.post(main, WM_COMMAND, MENU_ASSETS)
        self.assets = self.probe.window(DIALOG)
        self.wait_caption(main)

    def wait_caption(self, main):
        wait_until(lambda: self.probe.windows(ASSET_CAPTION), "the caption of the module")

    def lay_template(self, **keys):
        template = self.desktop.host_path("C:\\TeRu\\Import\\anl")
        template.mkdir(parents=True)
        (template / "kanzrewe.cfg").write_text(settings({"Vorlage": keys}))

    def control(self, identity):
        return self.probe.control(self.assets, identity)

    def exported(self, year):
        folder = self.desktop.host_path(f"C:\\TeRu\\Extern\\Berater-12\\4711\\Anl\\0101{year}")
        return {path.name: path.read_bytes().decode(CODE_PAGE).splitlines() for path in folder.iterdir()}


class AssetDialogTest(AssetTest):
    def test_it_can_be_worked_by_hand(self):
        self.open_dialog()
        self.desktop.click(*self.control(AREA).middle)
        self.desktop.key("Down")
        hint = self.probe.window("Hinweis")
        self.assertIn(HINT, self.probe.texts(hint))
        self.desktop.key("Return")
        self.probe.wait_gone(hint)
        self.desktop.click(*self.control(START).middle)
        box = self.probe.window(DIALOG, where=lambda window: window.class_name == "#32770")
        folder = "C:\\TeRu\\Anlagen\\0012\\4711\\Export\\200501"
        self.assertIn(
            f"Die Daten wurden erfolgreich exportiert und in {folder} abgelegt.\r\n#AN12008", self.probe.texts(box)
        )
        self.desktop.key("Return")
        self.probe.wait_gone(box)
        files = sorted(path.name for path in self.desktop.host_path(folder).iterdir())
        self.assertEqual(files, ["Abschreibungen.csv", "Anlagegüter.csv"])

    def test_a_folder_that_cannot_be_made_is_reported(self):
        self.open_dialog()
        self.desktop.host_path("C:\\TeRu\\Anlagen").write_bytes(b"")
        self.desktop.click(*self.control(START).middle)
        box = self.probe.window(DIALOG, where=lambda window: window.class_name == "#32770")
        self.assertTrue(any("konnten nicht" in text for text in self.probe.texts(box)))
        self.desktop.key("Return")
        self.probe.wait_gone(box)


class AssetMacroTest(AssetTest):
    def press_over_the_module(self, first_year):
        self.lay_template(WirtschaftsjahrAb=first_year)
        for name in (MACRO, "QUMAEXP.INI"):
            shutil.copy(ROOT / "demo" / name, self.folder)
        self.start_program()
        self.open_dialog()
        self.press(ASSET_CAPTION)
        self.wait_run_ended()
        log = self.log()
        self.assertEqual(log[-3:], [COMPLETED, STARS, ""])
        return log[log.index("MakroFile: " + MACRO) + 1 : -3]

    def test_each_checked_year_is_exported_into_the_tree(self):
        log = self.press_over_the_module("2004")
        self.assertIn("Matrix ab Jahr 2004 ausgeben.", log)
        self.assertIn("Matrix erfolgreich aufgebaut", log)
        for area in ("Handelsrecht", "Steuerrecht", "Kalkulation für Maschinen"):
            self.assertIn("Bereich: " + area, self.teru_log())
        extern = self.desktop.host_path("C:\\TeRu\\Extern")
        self.assertEqual([path.name for path in extern.iterdir()], ["Berater-12"])
        years = sorted(path.name for path in (extern / "Berater-12" / "4711" / "Anl").iterdir())
        self.assertEqual(years, ["01012004", "01012005"])
        for year, assets in (("2004", 5), ("2005", 6)):
            files = self.exported(year)
            self.assertEqual(sorted(files), ["Abschreibungen.csv", "Anlagegüter.csv"])
            self.assertEqual(len(files["Anlagegüter.csv"]), 1 + assets)
            self.assertEqual(files["Abschreibungen.csv"][1][:25], f"Handelsrecht;01.01.{year};4")
        temporary = "C:\\TeRu\\Extern\\ANLTEMP4711"
        for line in (
            f"Das Textfeld wurde ausgefüllt ({temporary})",
            f"Parse: {temporary}\\0012\\4711\\Export\\200401",
            "Parse: C:\\TeRu\\Extern\\Berater-12\\4711\\Anl\\01012004",
            f"CopyFolder: Source={temporary}\\0012\\4711\\Export\\200401 "
            "Destination=C:\\TeRu\\Extern\\Berater-12\\4711\\Anl\\01012004",
            f"Ordner gelöscht:{temporary}",
            "Loop: EOF",
            "Die Anlagen wurden exportiert.",
        ):
            self.assertIn(line, log)

    def test_a_year_that_one_area_alone_offers_is_exported_from_there(self):
        self.press_over_the_module("2002")
        self.assertEqual(self.exported("2002")["Abschreibungen.csv"][1][:37], "Kalkulation für Maschinen;01.01.2002;")
        self.assertEqual(self.exported("2003")["Abschreibungen.csv"][1][:13], "Handelsrecht;")

    def test_without_a_first_year_nothing_is_exported(self):
        self.press_over_the_module("")
        self.assertFalse(self.desktop.host_path("C:\\TeRu\\Extern\\Berater-12").exists())
        self.assertNotIn("Schaltfläche: Export starten", self.teru_log())


ASK_FOR_YEARS = f"""CREATEMATRIX={YEAR},{AREA},{DIALOG},1
SHOWINPUTANL='Mandant %1, Jahr %2?'
DO
IF MATRIX.CHECKED
MSG=$MATRIXJAHR
ENDIF
LOOP UNTIL MATRIX.EOF
"""


class AssetQuestionTest(AssetTest):
    def test_the_user_takes_a_year_more_and_keeps_the_proposed_treatment(self):
        self.lay_template(WirtschaftsjahrAb="2004", GWGinAuswertungen="1")
        self.lay_macro(ASK_FOR_YEARS, fragment=DIALOG)
        self.start_program()
        self.open_dialog()
        self.press(ASSET_CAPTION)
        window = self.dialog("Mandant 4711, Jahr 2005?", "GWG in Auswertungen:")
        windows = self.probe.windows(visible=False, process=window.process)
        dropped = [other for other in windows if other.class_name == "ComboLBox"]
        self.assertEqual([other.enabled for other in dropped], [True])  # else its entries would be grey
        treatment = self.probe.control(window, class_name="ComboBox")
        cb_getcursel = 327
        wait_until(lambda: self.probe.send(treatment, cb_getcursel) == 1, "the proposed treatment")
        time.sleep(0.3)  # the window manager names a window as the active one before keys reach it
        self.desktop.key("Up", "Down", "space", "Return")  # the second of the years 2002 to 2005
        self.wait_run_ended()
        written = self.desktop.host_path("C:\\TeRu\\Extern\\Berater-12\\4711\\TDConv.cfg").read_bytes()
        self.assertEqual(written, b"[ANL]\r\nOptionen GWGinAuswertungen=1\r\n")
        log = self.log()
        self.assertEqual(log[log.index(f"WindowCaption: {ASSET_CAPTION}") + 1], "Berater: 12")
        self.assertEqual(
            [line for line in log if line.startswith("MSG: ")],
            ["MSG: 01.01.2003", "MSG: 01.01.2004", "MSG: 01.01.2005"],
        )


if __name__ == "__main__":
    unittest.main()
