"""What docs/macros.md says of things that are easily got wrong, each statement rehearsed."""

import re
import unittest

from test_makrun import COMPLETED, ROOT, MakrunCase

GUIDE = (ROOT / "docs" / "macros.md").read_text()


class GuideTest(MakrunCase):
    def messages(self, *lines, options=(), status=0):
        """The texts that the macro has written with MSG."""
        return [line[5:] for line in self.makrun(*options, self.macro(*lines), status=status) if line.startswith("MSG: ")]

    # --- the file

    def test_an_umlaut_in_utf8_becomes_two_other_characters(self):
        self.assertIn("MSG: Ã¼", self.makrun(self.file("test.mak", "MSG=ü", "utf-8")))

    def test_a_byte_order_mark_makes_an_unknown_verb_also_of_a_comment(self):
        log = self.makrun(self.file("test.mak", "REM\r\nMSG=a", "utf-8-sig"), status=1)
        self.assertEqual(log, ["Unknown Command: Ï»¿REM"])

    def test_of_utf16_nothing_can_be_read(self):
        self.assertNotIn("MSG: a", self.makrun(self.file("test.mak", "MSG=a\r\n", "utf-16"), status=1))

    # --- arguments

    def test_quotes_protect_commas_and_an_open_one_empties_what_follows(self):
        self.assertEqual(self.messages("MSG='a,b'", "MSG=a,b", 'MSG="a,b"'), ["a,b", "a", "a"])
        self.makrun("--trace", self.macro("SETFOCUSCTL=a,'b,c"))
        self.assertIn('1: SETFOCUSCTL "a"\n', self.errors)

    def test_an_equals_sign_ends_the_arguments_or_is_lost(self):
        self.assertEqual(self.messages("DIM x", "MSG='a=b'", "MSG=a=b", "x=VALUE(a=b)", "MSG=x"), ["", "a", "ab"])

    def test_the_value_of_a_declared_variable_stays_whole(self):
        line, shown = re.search(r"with `(Frage=.*?)` in a section `Texte`.*?write `(.*?)`", GUIDE, re.S).groups()
        self.file("QUMAEXP.INI", f"[Texte]\r\n{line}\r\n")
        self.assertEqual(self.messages("DIM x", "x=READINI(Texte,Frage)", "MSG=x"), [shown])

    def test_a_value_of_a_dollar_variable_is_taken_apart_with_its_line(self):
        options = ["--caption", "TeRu - 0012 / a,b / 2005 / x"]
        log = self.makrun("--trace", *options, self.macro("MSG=$PATH", "MSG='$PATH'"))
        self.assertRegex(self.errors, r'1: MSG "C:.* a", "b .*\n2: MSG "C:.* a,b ')
        self.assertEqual(log[-2:], COMPLETED)

    # --- loops

    LIST = ('window open "Mandant öffnen"\n'
            '  control SysListView32 7\n'
            '    row "4711"\n'
            '    row "4712"\n')

    def walk(self):
        """The loop of the guide."""
        block = re.search(r"## Loops\n\n((?:    .*\n)+)", GUIDE)[1]
        return [line[4:] for line in block.splitlines()]

    def test_the_walk_over_a_list_takes_each_year_of_each_row(self):
        self.file("QUMAEXP.INI", "[Einkommensteuer]\r\nVeranlagungsjahr=2004,2005\r\n")
        walk = self.walk()
        log = self.makrun(*self.desktop(self.LIST), self.macro(*walk))
        told = [line for line in log if line.startswith(("SelectList", "MSG"))]
        self.assertEqual(told, ["SelectList 1", "MSG: 2004", "MSG: 2005", "SelectList 2", "MSG: 2004", "MSG: 2005"])

    def test_the_walk_does_not_end_without_next_vj(self):
        walk = [line for line in self.walk() if line != "NEXT VJ"]
        self.makrun("--line-limit", 10000, *self.desktop(self.LIST), self.macro(*walk), status=2)

    def test_without_if_vj_the_list_runs_past_its_end(self):
        self.file("QUMAEXP.INI", "[Einkommensteuer]\r\nVeranlagungsjahr=2004,2005,2006\r\n")
        walk = [line for line in self.walk() if line not in ("IF VJ", "ENDIF")]
        self.makrun("--line-limit", 10000, *self.desktop(self.LIST), self.macro(*walk), status=2)

    def test_a_loop_end_without_do_stays_at_the_first_line(self):
        log = self.messages("MSG=Anfang", "MSG=Mitte", "LOOP UNTIL COUNT", "MSG=Ende", options=("--line-limit", 5), status=2)
        self.assertEqual(log, ["Anfang", "Mitte", "Anfang", "Anfang"])

    def test_the_end_of_a_loop_around_another_one_stays_at_the_first_line(self):
        self.file("list.csv", "1;\r\n2;\r\n")
        # Five lines up to the end of the inner loop, two for its second pass, and the outer end: then three are left.
        log = self.messages("MSG=Anfang", "DO", "MSG=aussen", "OPENCSV=C:\\QUMA\\list.csv,0,;", "DO", "LOOP UNTIL CSVFILE.EOF",
                            "LOOP UNTIL COUNT", options=("--line-limit", 12), status=2)
        self.assertEqual(log, ["Anfang", "aussen", "Anfang", "Anfang", "Anfang"])

    # --- waiting, answering, closing

    def test_a_pattern_goes_by_folder_and_extension_and_all_files_never_fit(self):
        self.file("gestern.csv", "x")
        log = self.makrun(self.macro("WAITFORFILE=C:\\QUMA\\heute*.csv"))
        self.assertEqual(log, ["Datei wird eingelesen (1) ", *COMPLETED])
        self.makrun(self.macro("WAITFORFILE=C:\\QUMA\\*.*"), status=2)

    SLOW_BOX = ('window main "TeRu"\n'
                'window box "Frage"\n'
                '  class #32770\n'
                '  control Static 65535 "Weiter?"\n'
                '  control Button 6 "{}"\n'
                '  on command 6\n'
                '    after 5000\n'
                '      close box\n')

    def test_a_box_is_still_there_when_it_has_been_answered(self):
        desktop = self.desktop(self.SLOW_BOX.format("Ja"))
        lines = ["WAITFORDIALOG=Frage,Weiter", "IF CONFIRMDIALOG=Frage,Weiter", "MSG=noch einmal", "ENDIF"]
        self.assertEqual(self.messages(*lines, options=desktop), ["noch einmal"])

    def test_a_button_with_a_mark_is_not_pressed_although_the_log_says_so(self):
        desktop = self.desktop(self.SLOW_BOX.format("&Ja"))
        still = ["WAIT=6000", "IF CONFIRMDIALOG=Frage,Weiter", "MSG=offen", "ENDIF"]
        log = self.makrun(*desktop, self.macro("WAITFORDIALOG=Frage,Weiter", *still))
        self.assertIn("Dialog Frage / Weiter? wurde mit Ja bestätigt.", log)
        self.assertIn("MSG: offen", log)
        self.assertIn("`BUTTONCLICK=6,Frage,1`", GUIDE)
        self.assertEqual(self.messages("BUTTONCLICK=6,Frage,1", *still, options=desktop), [])

    def test_a_window_counts_as_closed_where_it_stays_and_where_there_is_none(self):
        desktop = self.desktop('window main "TeRu"\n  on close\n    text main "TeRu?"\n')
        log = self.makrun(*desktop, self.macro("CLOSEWINDOW=TeRu,1", "CLOSEWINDOW=Nirgends,1", "IF ACTIVEWINDOW=TeRu?",
                                               "MSG=da", "ENDIF"))
        self.assertEqual(log, ["Fenster wurde geschlossen.", "Fenster wurde geschlossen.", "MSG: da", *COMPLETED])

    def test_a_window_that_asks_is_closed_by_a_command(self):
        desktop = self.desktop('window main "TeRu"\n  on command 9\n    open box\n'
                               'box box "TeRu" "Speichern?" "Ja" "Nein"\n  on command 6\n    close main\n')
        log = self.makrun(*desktop, self.macro("MENUCLICK=9,TeRu,1", "WAITFORDIALOG=TeRu,Speichern"))
        self.assertIn("Dialog TeRu / Speichern? wurde mit Ja bestätigt.", log)


if __name__ == "__main__":
    unittest.main()
