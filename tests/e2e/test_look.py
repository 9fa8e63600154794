"""How every window of the program looks at two resolutions of the screen. The screenshots stay in build/test/look/."""

import itertools
import unittest

from harness import REGISTRY_KEY, RESULTS, TITLE, EndToEndTest, wait_until

ENDLESS = "DISPLAYSTATUS=Datei wird eingelesen (%1),4711\nWAITFORWINDOW=Dieses Fenster gibt es nicht,1,,,0\n"


def overlap(one, other):
    return one[0] < other[2] and other[0] < one[2] and one[1] < other[3] and other[1] < one[3]


class Look:
    """The tests, run once for each resolution."""

    def shoot(self, name, window=None):
        """Takes a screenshot once the window is painted; of a form of our own, looks at the places of its controls."""
        wait_until(lambda: self.desktop.x_windows("."), "a window on the screen")
        self.desktop.command(["sleep", "0.3"])
        self.desktop.screenshot(RESULTS / "look" / str(self.dpi) / f"{name}.png")
        if window is not None:
            self.assert_well_placed(window)

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
            if control.class_name.upper() == "BUTTON":
                self.assertTrue(20 <= (bottom - top) * 96 / self.dpi <= 34, control)
        for one, other in itertools.combinations(controls, 2):
            self.assertFalse(overlap(one.place, other.place), f"{one} and {other} overlap")

    def test_client_dialog(self):
        self.start_program()
        self.lay_macro("MSG=1\n", name="QUMAFIBU.MAK")
        self.start_teru()
        self.press()
        self.shoot("client dialog", self.dialog("Mandant:", "4711"))

    def test_client_dialog_without_client(self):
        self.start_program()
        self.lay_macro("MSG=1\n", name="QUMAFIBU.MAK")
        self.start_teru(caption="TeRu - ohne Mandant")
        self.press("TeRu - ohne Mandant")
        self.shoot("client dialog without client", self.dialog("Mandant:"))

    def test_status_dialog(self):
        self.start_program()
        self.lay_macro(ENDLESS)
        self.start_teru()
        self.press()
        status = self.status_dialog("Datei wird eingelesen (4711)")
        self.shoot("status running", status)
        self.click_button(status, "A&bbrechen")
        self.probe.wait_gone(status)

        self.lay_macro("MSG=1\nCREATEPROTOCOL=C:\\gibt es nicht\\Protokoll.txt\nMSG=2\nMSG=3\n")
        self.press()
        beginning = "Fehler in Funktion CreateProtocol:"

        def failed(window):
            return any(text.startswith(beginning) for text in self.probe.texts(window))

        status = self.probe.window(TITLE, where=failed)
        self.shoot("status failed", status)
        self.click_button(status, "W&eiter")
        self.shoot("status finished", self.status_dialog("Die Verarbeitung ist erfolgreich abgeschlossen."))

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
        self.shoot("about", self.dialog("OK", "&Systeminfo...", title="Info"))

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
