"""The mouse verbs at four resolutions of the screen, on a stand-in that knows the resolution and on one that does not.

The second one is drawn larger by the system and goes on counting pixels as if there were 96 to the inch. So does Windows
since Vista, and Wine 10; Wine 8 tells every program the true resolution, and there the second stand-in is as the first.
"""

import re
import shutil
import unittest

import test_input
from harness import WINDOWS_BUILD, EndToEndTest
from wine_desktop import wait_quietly, wait_until

MANIFEST = """\
<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
  <application xmlns="urn:schemas-microsoft-com:asm.v3">
    <windowsSettings>
      <dpiAware xmlns="http://schemas.microsoft.com/SMI/2005/WindowsSettings">true</dpiAware>
    </windowsSettings>
  </application>
</assembly>
"""
CAPTION = test_input.CAPTION


class PointerTest(test_input.InputTest):
    """The tests, run once for each resolution."""

    def setUp(self):
        EndToEndTest.setUp(self)

    def open_payments_of(self, aware):
        """Opens the form; `scale` becomes the number of screen pixels to a pixel of the stand-in."""
        program = self.folder / "TERU.EXE"
        shutil.copy(WINDOWS_BUILD / program.name, program)
        if aware:
            self.lay("TERU.EXE.manifest", MANIFEST)
        self.open_payments(program=program)
        # A click of the user into the margin tells how the stand-in counts.
        larger = self.dpi / 96

        def margin():
            # The window manager may have moved the form since it came up.
            self.window = self.as_it_is(self.window)
            left, _, _, bottom = self.window.place
            return round(left + 10 * larger), round(bottom - 12 * larger)

        def clicked():
            self.desktop.click(*margin())
            # A second click that comes while the first one is still on its way would count, too.
            return wait_quietly(self.clicks, seconds=10)

        wait_until(clicked, "a click into the form", interval=1)
        _, y = margin()
        _, own_y = self.place_of_click(0)
        self.scale = larger if abs(own_y * larger - y) < abs(own_y - y) else 1
        self.assertAlmostEqual(own_y, y / self.scale, delta=1)
        if aware:
            self.assertEqual(self.scale, 1)
        elif self.scale != larger:
            self.skipTest("This system draws no window larger, as Windows since Vista does.")

    def place_of_click(self, number):
        return tuple(map(int, re.search(r"(-?\d+)/(-?\d+)$", self.clicks()[number]).groups()))

    def offset_of(self, x, y):
        """The offset of a pixel of the screen, as a macro's author measures it in the form."""
        left, top, _, _ = self.window.place
        return round((x - left) / self.scale), round((y - top) / self.scale)

    def assert_offset_is_hit(self, aware):
        self.open_payments_of(aware)
        left, top, _, bottom = self.window.place
        margin = 10, round((bottom - top) / self.scale) - 12
        button = self.offset_of(*self.probe.control(self.window, text="&Nächstes Konto").middle)
        before = len(self.clicks())
        clicks = [f"WAIT=500\nMOUSECLICKBYWINDOWOFFSET={CAPTION},LEFT,{x},{y}\n" for x, y in (margin, button)]
        # The status dialog may lie above the button; and the first click brings the form to the front, which takes time.
        self.run_macro("".join(["HIDEDIALOG\n", *clicks]))
        wait_until(lambda: len(self.accounts()) > 1, "the next account, whose button is clicked")
        self.assertEqual(len(self.clicks()), before + 1)
        x, y = self.place_of_click(before)
        self.assertAlmostEqual(x, left / self.scale + margin[0], delta=1)
        self.assertAlmostEqual(y, top / self.scale + margin[1], delta=1)

    def accounts(self):
        return [line for line in self.journal() if "Konto: " in line]

    def assert_corner_is_hit(self, aware):
        self.open_payments_of(aware)
        self.run_macro("HIDEDIALOG\nMOUSEMOVETOCTL=thunderrt6textbox\nMOUSECLICK=LEFT\n")
        wait_until(lambda: self.probe.focus(self.window) == self.field.handle, "the focus of the field that is clicked")
        left, top, _, _ = self.field.place
        x, y = self.desktop.pointer()
        self.assertAlmostEqual(x, left + 5 * self.scale, delta=1)
        self.assertAlmostEqual(y, top + 5 * self.scale, delta=1)
        self.assertIn(f"Maus an Koordinate bewegt: {x}/{y}", self.log())

    def test_an_offset_hits_its_place_in_a_form_that_knows_the_resolution(self):
        self.assert_offset_is_hit(aware=True)

    def test_an_offset_hits_its_place_in_a_form_that_does_not_know_the_resolution(self):
        self.assert_offset_is_hit(aware=False)

    def test_the_corner_of_a_control_that_knows_the_resolution(self):
        self.assert_corner_is_hit(aware=True)

    def test_the_corner_of_a_control_that_does_not_know_the_resolution(self):
        self.assert_corner_is_hit(aware=False)


class PointerAt120Test(PointerTest):
    dpi, screen = 120, (1280, 960)


class PointerAt144Test(PointerTest):
    dpi, screen = 144, (1536, 1152)


class PointerAt192Test(PointerTest):
    dpi, screen = 192, (2048, 1536)


if __name__ == "__main__":
    unittest.main()
