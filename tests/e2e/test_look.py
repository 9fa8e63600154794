"""How every window of the program looks at two resolutions of the screen. The screenshots stay in build/test/look/."""

import itertools
import re
import subprocess
import unittest

from harness import CAPTION, REGISTRY_KEY, RESULTS, STARS, TITLE, WINDOWS_BUILD, EndToEndTest, wait_until

FORMS_PROBE = WINDOWS_BUILD / "FORMSPROBE.EXE"
BS_TYPEMASK, BS_AUTORADIOBUTTON = 0xF, 9
WS_HSCROLL = 0x100000
LVM_GETCOLUMNWIDTH = 4125
WM_GETDLGCODE, DLGC_DEFPUSHBUTTON = 135, 0x10
ENDLESS = "DISPLAYSTATUS=Datei wird eingelesen (%1),4711\nWAITFORWINDOW=Dieses Fenster gibt es nicht,1,,,0\n"


def overlap(one, other):
    return one[0] < other[2] and other[0] < one[2] and one[1] < other[3] and other[1] < one[3]


class Look:
    """The tests, run once for each resolution."""

    def shoot(self, name, window=None, default=None):
        """Takes a screenshot once the window is painted; of a form of our own, looks at its controls."""
        wait_until(lambda: self.desktop.x_windows_of("."), "a window on the screen")
        # A window manager with other work maps a window later than the system shows it.
        if window is not None:
            self.desktop.x_window(f"^{re.escape(window.text)}$")
            window = self.as_it_is(window)
        self.desktop.command(["sleep", "0.3"])
        self.desktop.screenshot(RESULTS / "look" / str(self.dpi) / f"{name}.png")
        if window is not None:
            self.assert_well_placed(window)
            self.assert_texts_have_room(window)
            self.assertEqual(self.default_buttons(window), [default] if default else [])

    def assert_well_placed(self, window):
        # A window that is not shown has no place.
        controls = [control for control in self.probe.controls(window) if control.parent == window.handle]
        self.assertGreater(len(controls), 0)
        for control in controls:
            left, top, right, bottom = control.place
            self.assertTrue(left < right and top < bottom, control)
            self.assertTrue(
                window.place[0] <= left
                and window.place[1] <= top
                and right <= window.place[2]
                and bottom <= window.place[3],
                f"{control} lies outside {window.place}",
            )
            if control.class_name.upper() == "BUTTON" and not self.is_option(control):
                self.assertTrue(20 <= (bottom - top) * 96 / self.dpi <= 34, control)
        for one, other in itertools.combinations(controls, 2):
            self.assertFalse(overlap(one.place, other.place), f"{one} and {other} overlap")

    def assert_texts_have_room(self, window):
        for control in self.probe.controls(window):
            left, top, right, bottom = control.place
            width, height = right - left, bottom - top
            if control.class_name == "QumaLabel":
                needed = self.probe.extent(control.text, width)
                self.assertTrue(needed[0] <= width and needed[1] <= height, f"{control} needs {needed}")
            elif control.class_name == "Button":
                mark = 13 * self.dpi // 96 if self.is_option(control) else 0
                self.assertLessEqual(mark + self.probe.extent(control.text)[0], width, control)

    def is_option(self, button):
        return self.probe.style(button) & BS_TYPEMASK == BS_AUTORADIOBUTTON

    def assert_columns_are_seen(self, window, *texts):
        """The texts, one for each column, can be read, and nothing is left to scroll to."""
        list_view = self.probe.control(window, class_name="SysListView32")
        self.assertEqual(self.probe.style(list_view) & WS_HSCROLL, 0)
        widths = [self.probe.send(list_view, LVM_GETCOLUMNWIDTH, column) for column in range(len(texts))]
        for text, width in zip(texts, widths):
            self.assertLess(self.probe.extent(text)[0], width, text)
        left, _, right, _ = list_view.place
        self.assertLessEqual(sum(widths), right - left)

    def default_buttons(self, window):
        """Texts of the buttons that are drawn as the one that Enter presses."""
        buttons = [control for control in self.probe.controls(window) if control.class_name == "Button"]
        return [button.text for button in buttons if self.probe.send(button, WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON]

    def show_form(self, word, *texts):
        """A form as the forms probe fills it."""
        self._started.append(self.desktop.program(FORMS_PROBE, word, stdout=subprocess.DEVNULL))
        window = self.dialog("OK", "Abbrechen", *texts)
        self.bring_to_front(TITLE)
        return window

    def test_client_dialog(self):
        self.start_program()
        self.lay_macro("MSG=1\n", name="QUMAFIBU.MAK")
        self.start_teru()
        self.press()
        self.shoot("client dialog", self.dialog("Mandant:", "4711"), default="OK")

    def test_client_dialog_without_client(self):
        self.start_program()
        self.lay_macro("MSG=1\n", name="QUMAFIBU.MAK")
        self.start_teru(caption="TeRu - ohne Mandant")
        self.press("TeRu - ohne Mandant")
        self.shoot("client dialog without client", self.dialog("Mandant:"), default="OK")

    def test_status_dialog(self):
        self.start_program()
        self.lay_macro(ENDLESS)
        self.start_teru()
        self.press()
        status = self.status_dialog("Datei wird eingelesen (4711)")
        self.shoot("status running", status, default="A&bbrechen")
        self.click_button(status, "A&bbrechen")
        self.probe.wait_gone(status)

        self.lay_macro("MSG=1\nCREATEPROTOCOL=C:\\gibt es nicht\\Protokoll.txt\nMSG=2\nMSG=3\n")
        self.press()
        beginning = "Fehler in Funktion CreateProtocol:"

        def failed(window):
            return any(text.startswith(beginning) for text in self.probe.texts(window))

        status = self.probe.window(TITLE, where=failed)
        self.shoot("status failed", status, default="A&bbrechen")
        self.click_button(status, "W&eiter")
        status = self.status_dialog("Die Verarbeitung ist erfolgreich abgeschlossen.")
        self.shoot("status finished", status, default="&OK")

    def test_status_dialog_of_a_run_that_ends_behind_the_target(self):
        self.start_program()
        self.lay_macro("WAITFORFILE=C:\\QUMA\\weiter.txt\n")
        self.start_teru()
        self.press()
        status = self.status_dialog()
        wait_until(lambda: self.default_buttons(status) == ["A&bbrechen"], "the status dialog to have been active")
        self.bring_to_front(CAPTION)
        self.lay("weiter.txt", "")
        self.wait_log(STARS, 2)
        ok = self.probe.control(status, text="&OK")
        self.shoot("status finished behind the target", status, default="&OK")
        self.bring_to_front(TITLE)
        wait_until(lambda: self.probe.focus(status) == ok.handle, "the focus on OK")
        self.shoot("status finished in front again", status, default="&OK")

    def test_dialog_for_the_clients(self):
        self.start_program()
        self.lay_macro("SHOWINPUTDLG=Für welche Mandanten soll die Einkommensteuer exportiert werden?\n")
        self.start_teru()
        self.press()
        self.shoot("input clients", self.dialog("alle Mandanten"), default="OK")

    def test_dialog_for_the_years_of_the_assets(self):
        window = self.show_form("input-anl", "GWG in Auswertungen:")
        self.shoot("input years", window, default="OK")
        self.assert_columns_are_seen(window, "", "01.07.1998", "30.06.1999", "Übernehmen")

    def test_dialog_for_the_years_of_the_second_application(self):
        window = self.show_form("input-mer-anl")
        self.shoot("input years of the second application", window, default="OK")
        self.assert_columns_are_seen(window, "", "01.07.1998", "30.06.1999", "Übernehmen")

    def test_dialog_for_an_account(self):
        self.shoot("input account", self.show_form("input-konto", "BLZ:"), default="OK")

    def test_dialog_for_clients_and_years_with_a_long_name(self):
        name = "Mustermann Vermögensverwaltungs- und Beteiligungsgesellschaft mbH & Co. Kommanditgesellschaft " * 2
        lines = ["Kopf", "Kopf", *(f"{number};{name};;;;September" for number in range(1001, 1041))]
        self.lay("MandantenFibu.txt", "\n".join(lines) + "\n")
        self.start_program()
        self.lay_macro("DIM datei\ndatei=SHOWINPUTMERFIB(Welche Mandanten?,C:\\QUMA\\MandantenFibu.txt)\n")
        self.start_teru()
        self.press()
        window = self.dialog("Welche Mandanten?", "Auswahl")
        self.shoot("input clients and years", window, default="OK")
        self.assert_columns_are_seen(window, "", "Mandant", "Bezeichnung", "September")
        before = self.name_width(window)
        # A wider dialog shows more of the name.
        left, top, right, bottom = window.place
        x_window = self.probe.x_window(window.handle)
        width, height = right - left + 120, bottom - top
        self.desktop.command(["xdotool", "windowsize", str(x_window), str(width), str(height)])
        wait_until(lambda: self.name_width(window) > before + 60, "a wider column")
        self.shoot("input clients and years, wider", self.dialog("Welche Mandanten?", "Auswahl"), default="OK")
        self.assert_columns_are_seen(window, "", "Mandant", "Bezeichnung", "September")

    def name_width(self, window):
        return self.probe.send(self.probe.control(window, class_name="SysListView32"), LVM_GETCOLUMNWIDTH, 2)

    def test_log(self):
        self.start_program()
        self.lay_macro("MSG='Größe, Maße, Länge'\n" * 10)
        self.start_teru()
        self.press()
        self.wait_run_ended()
        self.choose_from_menu("Protokoll anzeigen")
        self.shoot("log", self.probe.window("TARVEN Datenexport - Protokoll"))

    def test_menu_and_about_dialog(self):
        self.start_program()
        self.open_menu()
        self.shoot("menu")
        self.desktop.click(900, 300)
        self.choose_from_menu("Info")
        self.shoot("about", self.dialog("OK", "&Systeminfo...", title="Info"), default="OK")

    def test_message_boxes(self):
        self.start_program()
        self.lay_macro("MSG=1\n", fragment="etwas anderes")
        self.start_teru()
        self.press()
        box = self.dialog("Die Steuerungsdatei kann nicht geladen werden. Das Programm wird beendet.")
        self.shoot("no macro fits")
        self.answer(TITLE, "Return")
        self.probe.wait_gone(box)
        self.start_program_asking()
        self.dialog("Fehler beim registrieren der Aktionstaste.")
        self.shoot("hot key taken")
        self.answer(TITLE, "Return")

    def test_question_for_the_destination(self):
        self.probe.set_registry(REGISTRY_KEY, "Teru", "")
        self.start_program_asking()
        self.probe.window(TITLE)
        self.shoot("destination unknown")
        self.answer(TITLE, "Return")
        title = "TARVEN Datenexport - Bitte wählen Sie das TeRu-Installationsverzeichnis aus"
        self.probe.window(title)
        self.shoot("destination question")
        self.answer(title, "Escape")
        self.dialog("Das TeRu-Installationsverzeichnis wurde auf  festgelegt.")
        self.shoot("destination cancelled")
        self.answer(TITLE, "Return")
        wait_until(self.icons, "the icon")
        self.assertEqual(self.probe.registry(REGISTRY_KEY, "Teru"), "")


class LookAt96Test(Look, EndToEndTest):
    dpi = 96


class LookAt144Test(Look, EndToEndTest):
    dpi = 144


if __name__ == "__main__":
    unittest.main()
