"""makrun from outside: each option, each exit status, and each mistake that a desktop file can hold."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "scripts"))

from project import VERSION  # noqa: E402

MAKRUN = ROOT / "build" / "native" / "makrun"
STARS = "*" * 80
COMPLETED = ["Die Verarbeitung ist erfolgreich abgeschlossen.", STARS]
STOPPED = ["Die Verarbeitung wurde angehalten.", STARS]


class MakrunCase(unittest.TestCase):
    """Macros and desktop files in a folder of their own, and makrun's answers."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def file(self, name, text, encoding="cp1252"):
        path = self.folder / name
        path.write_bytes(text.encode(encoding))
        return str(path)

    def macro(self, *lines, name="test.mak"):
        return self.file(name, "".join(line + "\r\n" for line in lines))

    def makrun(self, *arguments, status=0, **environment):
        done = subprocess.run([str(MAKRUN), *map(str, arguments)], capture_output=True, timeout=300, cwd=self.folder,
                              env={**os.environ, "LC_ALL": "C", **environment})
        errors = done.stderr.decode()
        self.assertEqual(done.returncode, status, errors)
        self.errors = errors
        return done.stdout.decode().splitlines()

    def desktop(self, text):
        return ["--desktop", self.file("test.desktop", text, "utf-8")]


class MakrunTest(MakrunCase):
    # --- slow controls

    def test_a_control_that_is_slow_with_keys_gets_them_all_before_the_next_verb(self):
        desktop = self.desktop(
            'window main "TeRu - 1"\n  class X\n  control Edit 7\n    key-time 300\n'
            '  control Button 8 "Fertig"\n  on command 8\n    write "C:\\fertig.txt" "{main.7}"\n'
        )
        drive = self.folder / "drive"
        drive.mkdir()
        macro = self.macro("SENDKEY2=+(abc)d,7,TeRu,Edit", "BUTTONCLICK=8,TeRu,,Fertig,Button", "WAIT=100")
        self.makrun(*desktop, "--drive", drive, macro)
        self.assertEqual((drive / "fertig.txt").read_bytes(), b"ABCd\r\n")

    def test_a_control_that_hangs_at_a_key_or_a_message_uses_up_the_time(self):
        for property, line in [("key-time", "SENDKEY2=ab,7,TeRu,Edit"), ("message-time", "SETTEXT=ab,7,TeRu")]:
            desktop = self.desktop(f'window main "TeRu - 1"\n  class X\n  control Edit 7\n    {property} 600000\n')
            self.makrun(*desktop, "--time-limit", "60", self.macro(line, line), status=2)

    # --- exit status and output

    def test_a_completed_run_prints_its_log_and_ends_with_0(self):
        self.assertEqual(self.makrun(self.macro("MSG=Größe")), ["MSG: Größe", *COMPLETED])
        self.assertEqual(self.errors, "")

    def test_a_failed_run_ends_with_1_and_tells_the_error(self):
        macro = self.macro("MSG=a", "RAISEERROR=Das war ein Fehler", "MSG=b")
        self.assertEqual(self.makrun(macro, status=1), ["MSG: a", "Das war ein Fehler"])
        self.assertEqual(self.errors.splitlines(), [
            f"{macro}:2: RAISEERROR: Das war ein Fehler", "  line:        RAISEERROR=Das war ein Fehler",
            '  carried out: RAISEERROR "Das war ein Fehler"'])

    def test_a_stopped_run_ends_with_2(self):
        self.assertEqual(self.makrun(self.macro("STOP", "MSG=b"), status=2), STOPPED)

    def test_a_wrong_command_line_ends_with_64_and_tells_why(self):
        macro = self.macro("MSG=a")
        for arguments, reason in [
            ([], "no macro is named"),
            ([macro, macro], "one macro at a time"),
            (["--unknown", macro], "there is no option --unknown"),
            (["--desk"], "there is no option --desk"),
            ([macro, "--desktop"], "--desktop wants a value"),
            ([""], "no macro is named"),
            (["--desktop", "", macro], "--desktop wants a value"),
            (["--ini", "", macro], "--ini wants a value"),
            (["--drive", "", macro], "--drive wants a value"),
            (["--clipboard", "", macro], "--clipboard wants a value"),
            (["--resume", "x", macro], "--resume wants a number"),
            (["--resume", "1x", macro], "--resume wants a number"),
            (["--resume", "-1", macro], "--resume wants a number"),
            (["--time-limit", "2000001", macro], "--time-limit wants a number from 0 to 2000000"),
            (["--line-limit", "", macro], "--line-limit wants a number"),
            (["--now", "2006-02-30 00:00:00", macro], "--now wants a time"),
            (["--now", "2006-02-28", macro], "--now wants a time"),
            (["--now", "2006-02-28 24:00:00", macro], "--now wants a time"),
            (["--now", "2006-02-28 23:60:00", macro], "--now wants a time"),
            (["--now", "2006-02-28 23:00:60", macro], "--now wants a time"),
            (["--now", "2006-02-28 -1:00:00", macro], "--now wants a time"),
            (["--now", "2006-02-28 23:00:00 x", macro], "--now wants a time"),
            (["--now", "0099-02-28 23:00:00", macro], "--now wants a time"),
            (["--family", "xp", macro], "--family wants nt or 9x"),
            (["--answer", "frmInputbox", macro], "--answer wants FORM.CONTROL"),
            (["--answer", ".cmdOK", macro], "--answer wants FORM.CONTROL"),
            (["--answer", "frmInputbox.=x", macro], "--answer wants FORM.CONTROL"),
        ]:
            with self.subTest(reason):
                self.assertEqual(self.makrun(*arguments, status=64), [])
                self.assertIn(reason, self.errors)
                self.assertIn("usage: makrun", self.errors)

    def test_a_file_that_cannot_be_read_ends_with_66_and_is_named(self):
        macro = self.macro("MSG=a")
        missing = str(self.folder / "fehlt")
        for arguments in [[missing], [str(self.folder)], ["--desktop", missing, macro], ["--ini", missing, macro],
                          ["--clipboard", missing, macro], ["--drive", missing, macro]]:
            with self.subTest(arguments=arguments):
                self.assertEqual(self.makrun(*arguments, status=66), [])
                self.assertIn(arguments[-2] if arguments[0] == "--drive" else missing
                              if missing in arguments else str(self.folder), self.errors)

    def test_a_drive_on_which_the_program_cannot_write_ends_with_66_and_is_named(self):
        drive = self.folder / "drive"
        (drive / "QUMA" / "QUMAEXP.LOG").mkdir(parents=True)
        macro = self.macro("MSG=a")
        self.assertEqual(self.makrun("--drive", drive, macro, status=66), [])
        self.assertIn("C:\\QUMA\\QUMAEXP.LOG cannot be written", self.errors)
        blocked = self.folder / "blocked"
        blocked.mkdir()
        (blocked / "QUMA").write_text("")
        self.assertEqual(self.makrun("--drive", blocked, macro, status=66), [])
        self.assertIn("blocked/QUMA", self.errors)

    def test_an_output_that_cannot_be_written_ends_with_66(self):
        with open("/dev/full", "wb") as full:
            done = subprocess.run([str(MAKRUN), self.macro("MSG=a")], stdout=full, stderr=subprocess.PIPE, timeout=60,
                                  env={**os.environ, "LC_ALL": "C"})
        self.assertEqual(done.returncode, 66)
        self.assertIn("standard output cannot be written", done.stderr.decode())

    def test_a_macro_whose_name_the_program_cannot_open_ends_with_66_and_is_named(self):
        self.assertEqual(self.makrun(self.macro("MSG=a", name="Ж.mak"), status=66), [])
        self.assertIn("?.mak cannot be made", self.errors)

    def test_a_macro_can_come_from_a_pipe(self):
        done = subprocess.run([str(MAKRUN), "/dev/stdin"], input=b"MSG=a\r\n", capture_output=True, timeout=60)
        self.assertEqual(done.stdout.decode().splitlines(), ["MSG: a", *COMPLETED])

    def test_a_drive_that_is_a_file_ends_with_66(self):
        macro = self.macro("MSG=a")
        self.assertEqual(self.makrun("--drive", macro, macro, status=66), [])
        self.assertEqual(self.errors, f"makrun: {macro} is no folder\n")

    def test_help_tells_the_options(self):
        self.assertIn("--desktop FILE", "\n".join(self.makrun("--help")))

    def test_it_speaks_german_on_a_german_system_and_english_elsewhere(self):
        missing = str(self.folder / "fehlt.mak")
        for language, said in [("C", "cannot be read"), ("de_DE.UTF-8", "kann nicht gelesen werden")]:
            with self.subTest(language):
                self.makrun(missing, status=66, LC_ALL=language)
                self.assertIn(f"makrun: {missing} {said}: ", self.errors)

    def test_the_language_can_be_chosen_also_for_what_is_wrong_in_front_of_it(self):
        self.makrun("--unknown", "--lang", "de", status=64)
        self.assertIn("makrun: die Option --unknown gibt es nicht\nAufruf: makrun", self.errors)
        self.makrun("--lang", "en", "--unknown", status=64, LC_ALL="de_DE.UTF-8")
        self.assertIn("makrun: there is no option --unknown\nusage: makrun", self.errors)
        self.makrun("--lang", "fr", self.macro("MSG=a"), status=64)
        self.assertIn('--lang wants de or en, not "fr"', self.errors)

    def test_help_tells_the_same_options_in_both_languages(self):
        options = [re.findall(r"^  (--\S+)", "\n".join(self.makrun("--help", "--lang", language)), re.MULTILINE)
                   for language in ("en", "de")]
        self.assertEqual(*options)
        self.assertIn("--lang", options[0])

    def test_the_version_is_that_of_the_project(self):
        self.assertEqual(self.makrun("--version"), ["makrun " + VERSION])

    # --- options

    def test_without_a_desktop_there_is_one_main_window(self):
        macro = self.macro("IF ACTIVEWINDOW=TeRu - 0012/4711/2005/Probelauf", "MSG=ja", "ENDIF")
        self.assertEqual(self.makrun(macro), ["MSG: ja", *COMPLETED])

    def test_the_caption_can_be_chosen(self):
        macro = self.macro("IF ACTIVEWINDOW=Müller", "MSG=ja", "ENDIF")
        self.assertEqual(self.makrun("--caption", "TeRu - Müller", macro), ["MSG: ja", *COMPLETED])

    def test_settings_are_those_beside_the_macro(self):
        self.file("QUMAEXP.INI", "[MERLA]\r\nVersion=280\r\n")
        macro = self.macro("DIM V", "V=READINI(MERLA,Version)", "MSG=V")
        self.assertIn("MSG: 280", self.makrun(macro))
        self.assertIn("MSG: 280", self.makrun("test.mak"))

    def test_settings_can_be_chosen(self):
        self.file("QUMAEXP.INI", "[MERLA]\r\nVersion=280\r\n")
        other = self.file("other.ini", "[MERLA]\r\nVersion=2100\r\n")
        macro = self.macro("DIM V", "V=READINI(MERLA,Version)", "MSG=V")
        self.assertIn("MSG: 2100", self.makrun("--ini", other, macro))

    def test_a_drive_is_kept(self):
        drive = self.folder / "drive"
        drive.mkdir()
        self.makrun("--drive", drive, self.macro("CREATEPROTOCOL=C:\\Protokoll.txt", "ADDPROTOCOL=Zeile", "CLOSEPROTOCOL"))
        self.assertIn("Zeile", (drive / "Protokoll.txt").read_text("cp1252"))

    def test_a_kept_drive_does_not_repeat_an_older_log(self):
        drive = self.folder / "drive"
        drive.mkdir()
        macro = self.macro("MSG=a")
        self.makrun("--drive", drive, macro)
        self.assertEqual(self.makrun("--drive", drive, macro), ["MSG: a", *COMPLETED])

    def test_a_kept_drive_does_not_keep_the_settings_of_an_earlier_rehearsal(self):
        drive = self.folder / "drive"
        drive.mkdir()
        other = self.file("other.ini", "[MERLA]\r\nVersion=2100\r\n")
        macro = self.macro("DIM V", "V=READINI(MERLA,Version)", "MSG=V")
        self.assertIn("MSG: 2100", self.makrun("--drive", drive, "--ini", other, macro))
        self.assertNotIn("MSG: 2100", self.makrun("--drive", drive, macro))

    def test_a_file_beside_the_macro_is_copied_to_a_kept_drive_each_time(self):
        drive = self.folder / "drive"
        drive.mkdir()
        for text in ["alt", "neu"]:
            self.file("neben.txt", text)
            self.makrun("--drive", drive, self.macro("MSG=a"))
            self.assertEqual((drive / "QUMA" / "neben.txt").read_text(), text)
        (drive / "QUMA" / "neben.txt").unlink()
        (drive / "QUMA" / "neben.txt").mkdir()
        self.makrun("--drive", drive, self.macro("MSG=a"), status=66)
        self.assertIn("neben.txt cannot be copied", self.errors)

    def test_the_macros_folder_stays_as_it_is(self):
        macro = self.macro("MSG=a")
        before = sorted(self.folder.iterdir())
        self.makrun(macro)
        self.assertEqual(sorted(self.folder.iterdir()), before)

    def test_a_press_chooses_the_macro_by_the_caption_and_writes_the_run_header(self):
        self.file("QUMAEXP.INI", "[Makro]\r\nMakro1='TeRu',test.mak\r\n")
        self.assertEqual(
            self.makrun("--press", self.macro("MSG=a")),
            ["", STARS, "Tarven Datenexport wurde gestartet...", "Datum:14.03.2006 09:30:00", "MakroFile: test.mak",
             "MSG: a", *COMPLETED])

    def test_a_press_that_finds_no_macro_ends_with_1_and_shows_the_message(self):
        self.makrun("--press", self.macro("MSG=a"), status=1)
        self.assertIn("Die Steuerungsdatei kann nicht geladen werden.", self.errors)

    CLIENT_INI = "[Makro]\r\nMakro1='TeRu',QUMAFIBU.MAK\r\n"

    def client_macro(self):
        self.file("QUMAEXP.INI", self.CLIENT_INI)
        return self.macro("MSG=$PATH", name="QUMAFIBU.MAK")

    def test_a_dialog_without_an_answer_is_confirmed(self):
        log = self.makrun("--press", self.client_macro())
        self.assertIn("Mandant: 4711", log)

    def test_a_folder_that_ends_in_a_blank_is_told_once(self):
        macro = self.macro("MSG=$PATH", "MSG=$GDPDUPATH")
        told = "C:\\TeRu\\Extern\\ 4711 "
        self.makrun("--caption", "TeRu - 0012 / 4711 / 2005 / x", macro)
        self.assertEqual(self.errors.count(f'"{told}"'), 1, self.errors)
        self.makrun(macro)
        self.assertEqual(self.errors, "")

    def test_answers_fill_the_dialog(self):
        log = self.makrun("--press", "--answer", "frmInputbox.txtMandant=ü=1", "--answer", "frmInputbox.txtJahr=2004",
                          "--answer", "frmInputbox.cmdOK", self.client_macro())
        self.assertIn("Mandant: ü=1", log)
        self.assertIn("Wirtschaftsjahr: 2004", log)

    def test_answers_check_rows_choose_entries_and_set_options(self):
        arguments = self.desktop(
            'window main "TeRu - 0012/4711/2005/Probelauf"\n'
            'window assets "Anlagen"\n'
            '  control ComboBox 11\n'
            '    items "Inventar"\n'
            '  control ComboBox 12\n'
            '    items "01.01.2004" "01.01.2005"\n')
        drive = self.folder / "drive"
        drive.mkdir()
        macro = self.macro("CREATEMATRIX=12,11,Anlagen,1", "SHOWINPUTANL=Jahre?", "REM", "DO", "IF MATRIX.CHECKED",
                           "MSG=$MATRIXJAHR", "ENDIF", "LOOP UNTIL MATRIX.EOF")
        log = self.makrun(*arguments, "--drive", drive, "--answer", "frmInputANL.lstViewJahr=31.12.2005",
                          "--answer", "frmInputANL.cboGWG=Zugang und Abschreibung", macro)
        self.assertEqual([line for line in log if line.startswith("MSG")], ["MSG: 01.01.2005"])
        options = drive / "TeRu" / "Extern" / "Berater-12" / "4711" / "TDConv.cfg"
        self.assertIn("GWGinAuswertungen=1", options.read_text())
        for answer, reason in [("lstViewJahr=2005", 'has no row "2005"'), ("cboGWG=Größe", 'has no entry "Größe"'),
                               ("lblInfo=x", "takes no answer")]:
            with self.subTest(answer):
                self.makrun(*arguments, "--answer", "frmInputANL." + answer, macro, status=64)
                self.assertIn(f"frmInputANL.{answer.split('=')[0]} {reason}", self.errors)
        self.assertIn("ShowInputDlg (2)", self.makrun("--answer", "frmInputEST.optCurrent",
                                                      self.macro("SHOWINPUTDLG=Mandanten?")))

    def test_a_dialog_that_stays_open_is_given_up_with_its_line(self):
        log = self.makrun("--answer", "frmInputEST.optFromTo", "--answer", "frmInputEST.txtFrom=x",
                          self.macro("MSG=a", "SHOWINPUTDLG=Mandanten?"), status=2)
        self.assertEqual(log, ["MSG: a"])
        said = self.errors.splitlines()
        self.assertIn(":2: SHOWINPUTDLG: given up: shows frmInputEST, which stays open whatever is answered", said[0])
        self.assertEqual(said[-1], "makrun: message box: Bitte geben Sie eine numerische Mandantennummer ein!")

    def test_a_dialog_takes_the_answers_that_name_it_and_leaves_the_others(self):
        macro = self.macro("SHOWINPUTDLG=eins", "SHOWINPUTDLG=zwei")
        log = self.makrun("--answer", "frmInputEST.optAll", "--answer", "frmInputEST.cmdOK",
                          "--answer", "frmInputEST.optCurrent", "--answer", "frmInputANL.cmdOK", macro)
        self.assertEqual(log, ["ShowInputDlg (1)", "ShowInputDlg (2)", *COMPLETED])
        self.assertEqual(self.errors, "makrun: the answer frmInputANL.cmdOK was not asked for\n")

    def test_a_cancelled_dialog_starts_no_run(self):
        log = self.makrun("--press", "--answer", "frmInputbox.cmdCancel", self.client_macro(), status=2)
        self.assertEqual(log[-1], "MakroFile: QUMAFIBU.MAK")
        self.assertIn("the press started no run", self.errors)

    def test_an_answer_to_a_control_that_is_not_there_is_a_wrong_command_line(self):
        self.makrun("--press", "--answer", "frmInputbox.txtKonto=1", self.client_macro(), status=64)
        self.assertIn("frmInputbox.txtKonto does not exist", self.errors)

    def test_an_answer_that_nobody_asked_for_is_told(self):
        self.makrun("--answer", "frmInputEST.cmdOK", self.macro("MSG=a"))
        self.assertEqual(self.errors, "makrun: the answer frmInputEST.cmdOK was not asked for\n")
        self.makrun("--answer", "frmGröße.cmdOK", self.macro("MSG=a"))
        self.assertEqual(self.errors, "makrun: the answer frmGröße.cmdOK was not asked for\n")

    def test_the_clipboard_holds_the_file(self):
        drive = self.folder / "drive"
        drive.mkdir()
        macro = self.macro("SAVECLIPBOARD=C:\\t.csv")
        self.makrun("--clipboard", self.file("table.txt", "Größe\tb\r\n", "utf-8"), "--drive", drive, macro)
        self.assertEqual((drive / "t.csv").read_bytes(), '"Größe";"b";\r\n'.encode("cp1252"))
        self.makrun("--clipboard", self.file("table.txt", "a\tß", "cp1252"), "--drive", drive, macro)
        self.assertIn(b'"a";"\xdf', (drive / "t.csv").read_bytes())

    def test_a_failed_run_is_resumed_so_often(self):
        macro = self.macro("RAISEERROR=eins", "MSG=a", "RAISEERROR=zwei", "MSG=b")
        self.assertEqual(self.makrun("--resume", 2, macro),
                         ["eins", "<Cancel>", "MSG: a", "zwei", "<Cancel>", "MSG: b", *COMPLETED])
        self.assertEqual(self.makrun("--resume", 1, macro, status=1), ["eins", "<Cancel>", "MSG: a", "zwei"])

    def test_the_clock_can_be_set(self):
        self.assertEqual(self.makrun("--now", "2004-02-29 23:59:58", self.macro("WAIT=3000", "MSG=$NOW")),
                         ["MSG: 01.03.2004 00:00:01", *COMPLETED])

    def test_the_family_can_be_chosen(self):
        macro = self.macro("DIM V", "V=WINVERSION", "IF ISOSNT", "MSG=nt", "ELSE", "MSG=V", "ENDIF")
        self.assertEqual(self.makrun(macro), ["MSG: nt", *COMPLETED])
        self.assertEqual(self.makrun("--family", "nt", macro), ["MSG: nt", *COMPLETED])
        self.assertEqual(self.makrun("--family", "9x", macro), ["MSG: 4.10", *COMPLETED])

    def test_the_user_cancels_at_the_time_limit(self):
        macro = self.macro("WAITFORWINDOW=kommt nie", "MSG=b")
        self.assertEqual(self.makrun("--time-limit", 10, macro, status=2),
                         ["<Cancel>", "Warten auf Fenster war erfolgreich.", *STOPPED])

    def test_a_wait_that_cancel_does_not_end_is_given_up_with_its_line(self):
        macro = self.macro("MSG=a", "WAITFORDIALOG=kommt,nie")
        log = self.makrun(macro, status=2)
        self.assertEqual(log, ["MSG: a", "WaitForDialog: kommt / nie", "<Cancel>"])
        self.assertEqual(self.errors.splitlines(), [
            f"{macro}:2: WAITFORDIALOG: given up: went on waiting although the user had cancelled after 3600 seconds",
            "  line:        WAITFORDIALOG=kommt,nie", '  carried out: WAITFORDIALOG "kommt", "nie"',
            '  because:     there is no window with "kommt" in its title; there are: '
            '"TeRu - 0012/4711/2005/Probelauf"'])

    def test_a_wait_is_given_up_a_minute_after_the_cancel(self):
        self.assertEqual(self.makrun("--time-limit", 1, self.macro("WAIT=61000", "MSG=a")), ["MSG: a", *COMPLETED])
        self.assertEqual(self.makrun("--time-limit", 1, self.file("test.mak", "WAIT=61001"), status=2), [])
        self.assertIn("test.mak:1: WAIT: given up: went on waiting", self.errors)

    def test_a_macro_that_passes_the_line_limit_is_given_up_with_its_line(self):
        macro = self.macro("REM", "MARK=a", "GOTO=a")
        self.makrun("--line-limit", 100, macro, status=2)
        # Lines 1 and 2 once, then line 3 and, behind each of its jumps, line 2: the 101st visit is one of line 3.
        self.assertIn(f"{macro}:3: GOTO: given up: passed the limit of 100 lines\n", self.errors)
        macro = self.file("test.mak", "MSG=a\r\nMSG=b")
        self.assertEqual(self.makrun("--line-limit", 3, macro), ["MSG: a", "MSG: b", *COMPLETED])  # ends empty
        self.assertEqual(self.makrun("--line-limit", 1, macro, status=2), ["MSG: a"])
        self.assertIn(":2: MSG: given up: passed the limit of 1 lines\n", self.errors)

    def test_real_time_sleeps(self):
        macro = self.macro("WAIT=1500")
        with self.assertRaises(subprocess.TimeoutExpired):
            subprocess.run([str(MAKRUN), "--real-time", macro], timeout=1.2, capture_output=True)
        self.assertEqual(self.makrun("--real-time", macro), COMPLETED)

    def test_a_trace_shows_each_visited_line(self):
        macro = self.macro("REM Kopf", "DIM A", "A=VALUE(x y)", "MSG=A,ü", "IF STRCOMP=1,2", "msg=$DATE", "ENDIF")
        self.makrun("--trace", macro)
        self.assertEqual(self.errors.splitlines(), [
            "1: REM Kopf", "2: DIM A", '3: VALUE "x y"', '4: MSG "x y", "ü"', '5: IF STRCOMP "1", "2"',
            '6: (passed over) MSG "14.03.2006"', "7: ENDIF", "8: "])

    def test_a_trace_marks_what_has_no_effect_and_nothing_else(self):
        macro = self.macro("DIM A", "IF STRCOMP=1,2", "REM", "DIM B", "A=VALUE(x)", "unbekannt=1", "ELSE", "IF STRCOMP=1,2",
                           "GOTO=a", "ENDIF", "MARK=a")
        self.makrun("--trace", macro)
        self.assertEqual([line for line in self.errors.splitlines() if "passed over" in line],
                         ['5: (passed over) VALUE "x"', '6: (passed over) UNBEKANNT "1"', '9: (passed over) GOTO "a"'])
        self.makrun("--trace", "--lang", "de", macro)
        self.assertIn('9: (übergangen) GOTO "a"', self.errors)

    def test_the_verbs_are_listed_with_kind_and_arguments(self):
        listed = self.makrun("--list-verbs")
        self.assertEqual(len(listed), 110)
        for line in ["WAIT (action): milliseconds", "CLEARCLIPBOARD (action)", "IF STRCOMP (condition): text, text",
                     "READTEXT (value): id, window, exact, class, frame id, frame class", "ELSE (branch)",
                     "CONFIRMDIALOG (action, never fails): title fragment, text fragment",
                     "READINI (value, always counts as done): section, key"]:
            self.assertIn(line, listed)
        guide = (ROOT / "docs" / "macros.md").read_text().split("\n## The verbs\n")[1]
        words = [word for row in re.findall(r"^\| (`.*?`) \|", guide, re.M) for word in re.findall("`(.*?)`", row)]
        self.assertEqual(sorted(line.split(" (")[0] for line in listed), sorted(words))
        self.assertIn("WAIT (Aktion): milliseconds", self.makrun("--list-verbs", "--lang", "de"))

    # --- reports

    def report(self, *lines, status=1, options=()):
        """The report of the one line that did not do its work, without the macro's name."""
        macro = self.macro(*lines)
        self.makrun(*options, macro, status=status)
        return self.errors.replace(macro + ":", "").splitlines()

    def test_a_failure_without_a_text_tells_what_was_looked_for(self):
        desktop = self.desktop(
            'window main "TeRu"\n'
            '  control SysListView32 4\n'
            '  control Button 5 "Haken"\n'
            '    style checkbox\n')
        for line, said in [
            ("WAIT=abc", 'WAIT: "abc" is no number of milliseconds'),
            ("SLEEP=", 'SLEEP: "" is no number of milliseconds'),
            ("MOUSECLICK=MIDDLE", 'MOUSECLICK: "MIDDLE" is neither LEFT nor RIGHT'),
            ("MOUSEMOVETOCTL=", "MOUSEMOVETOCTL: neither a class nor a text is given"),
            ("SETFOCUSCTL=,,4", "SETFOCUSCTL: neither a class nor a text is given"),
            ("RAISEERROR=", "RAISEERROR: no text is given"),
            ("SELECTLIST=4,TeRu,1", "SELECTLIST: the list is empty"),
            ("READLISTITEM=x,4,TeRu,1", "READLISTITEM: the list is empty"),
            ("GETCHECK=5,TeRu,1", "GETCHECK: the box is not checked"),
            ("GETTEXT=x,7,TeRu,1", 'GETTEXT: the window "TeRu" has no control with the id 7, directly in it (no class is '
                                   "given)"),
            ("GETTEXT=x,7,Taru,1", 'GETTEXT: there is no window with the title "Taru"; there are: "TeRu"'),
            ("SENDKEY2=x,9,TeRu,SysListView32", 'SENDKEY2: the window "TeRu" has no control with the id 9, of the class '
                                                '"SysListView32"; it has: id 4 of the class "SysListView32" with the text ""'),
        ]:
            with self.subTest(line):
                report = self.report("MSG=a", line, options=desktop)
                self.assertEqual(report[0], "2: " + said)
                self.assertEqual(report[1], "  line:        " + line)
                self.assertEqual(len(report), 3)

    def test_an_older_text_is_not_told_for_a_failure_without_one(self):
        report = self.report("IF GETTEXT=x,7,TeRu,0", "ENDIF", "IF SELECTCOMBO=x,7,TeRu", "ENDIF", "WAIT=abc")
        self.assertEqual(report[0], '5: WAIT: "abc" is no number of milliseconds')

    def test_a_line_is_shown_as_it_stands_and_as_it_was_carried_out(self):
        report = self.report("DIM Grund", "Grund=VALUE(Größe)", 'RAISEERROR="Grund",$DATE')
        self.assertEqual(report, ["3: RAISEERROR: Größe", '  line:        RAISEERROR="Grund",$DATE',
                                  '  carried out: RAISEERROR "Größe", "14.03.2006"'])

    def test_each_failure_of_a_resumed_run_is_told(self):
        report = self.report("RAISEERROR=eins", "RAISEERROR=eins", status=0, options=("--resume", 2))
        self.assertEqual([line for line in report if not line.startswith(" ")],
                         ["1: RAISEERROR: eins", "2: RAISEERROR: eins"])

    def test_a_cancelled_wait_tells_what_it_waited_for(self):
        desktop = self.desktop('window main "TeRu"\n  control Static 1 "Bitte warten"\n')
        for line, why in [
            ("WAITFORWINDOW=TeRu,1,,Edit,1", 'the window "TeRu" has no control with the id 1, of the class "Edit"; it has: '
                                             'id 1 of the class "Static" with the text "Bitte warten"'),
            ("WAITFORWINDOW=TeRu,1,Bitte", "no class is given, and a control is found by its text only together with its "
                                           "class"),
            ("WAITFORCLIPBOARD", "no text came to the clipboard"),
            ("WAITFORFILE=C:\\x.csv", 'there is no file "C:\\x.csv"'),
            ("WAITFORFILE=C:\\QUMA\\*.*", 'there is no file of the folder and extension of "C:\\QUMA\\*.*"'),
        ]:
            with self.subTest(line):
                report = self.report(line, status=2, options=desktop)
                self.assertEqual(report[0], f"1: {line.split('=')[0]}: cancelled by the user")
                self.assertEqual(report[-1], "  because:     " + why)
        report = self.report("WAITFORDIALOG=Te,fertig", status=2, options=desktop)
        self.assertEqual(report[-1], '  because:     the window "TeRu" shows no text with "fertig"')

    def test_a_dialog_that_is_cancelled_is_told_and_a_stop_is_not(self):
        options = ("--answer", "frmInputEST.cmdCancel")
        self.assertEqual(self.report("SHOWINPUTDLG=wer?", status=2, options=options)[0],
                         "1: SHOWINPUTDLG: cancelled by the user")
        self.assertEqual(self.report("STOP", status=2), [])

    def test_a_report_is_german_on_a_german_system(self):
        macro = self.macro("WAIT=abc")
        self.makrun(macro, status=1, LC_ALL="de_DE.UTF-8")
        self.assertEqual(self.errors.splitlines(), [
            f'{macro}:1: WAIT: "abc" ist keine Zahl von Millisekunden', "  Zeile:      WAIT=abc",
            '  ausgeführt: WAIT "abc"'])

    def test_an_encoding_that_the_program_does_not_read_is_warned_of(self):
        for text, encoding, line, said in [
            ("REM\nMSG=ü", "utf-8", 2, "is in UTF-8"), ("REM", "utf-8-sig", 1, "begins with a byte order mark"),
            ("MSG=a", "utf-16", 1, "is in UTF-16"), ("MSG=a", "utf-16-le", 1, "is in UTF-16"),
        ]:
            with self.subTest(encoding):
                path = self.file("test.mak", text, encoding)
                done = subprocess.run([str(MAKRUN), "--lang", "en", path], capture_output=True, timeout=60)
                self.assertIn(f"{path}:{line}: warning: the file {said}", done.stderr.decode())
                self.assertIn("(Windows-1252)", done.stderr.decode())
        self.makrun(self.file("test.mak", "MSG=ü", "cp1252"))
        self.assertEqual(self.errors, "")

    # --- desktop files

    def test_mistakes_of_a_desktop_file_are_reported_with_line_and_expectation(self):
        window = 'window main "TeRu"\n'
        control = window + "  control Edit 1\n  on command 1\n"
        for text, line, expected in [
            ("\twindow main \"x\"", 1, "an indentation of blanks"),
            ("  window main \"x\"", 1, "a first statement that is not indented"),
            (window + "    at 1 2 3 4\n  hidden", 3, "the indentation of one of the lines above"),
            ('window main "TeRu', 1, "a double quote at the end"),
            ('window main "TeRu"x', 1, "a blank behind the text"),
            ("window", 1, "a name and a text"),
            ("window main", 1, "the window's title in double quotes"),
            ("window main TeRu", 1, "the window's title in double quotes"),
            ('window main "a" "b"', 1, 'the end of the line instead of "b"'),
            (window + window, 2, "a name that no other window has"),
            ("fenster", 1, "window, dialog, box, file, folder, registry, environment, missing-program, refuses-blockinput or after"),
            (window + "  farbe rot", 2, "a property of the window"),
            (window + "  at 1 2 3", 2, "left, top, width and height"),
            (window + "  at 1 2 3 x", 2, "left, top, width and height"),
            (window + "  at 1 2 3 -4", 2, "left, top, width and height"),
            (window + "  at 32768 2 3 4", 2, "left, top, width and height"),
            (window + "  at 1 2 2147483647 4", 2, "left, top, width and height"),
            (window + "  control Button x", 2, "the control's id, a number"),
            (window + "  control", 2, "a class, an id and a text"),
            (window + "  control Button 1 OK", 2, "the control's text in double quotes"),
            (window + "  control Button 1\n    style rund", 3, "checkbox, option, frame or single-selection"),
            (window + "  control ComboBox 1\n    items a", 3, "the entries in double quotes"),
            (window + "  control ComboBox 1\n    selected erster", 3, "the number of an entry"),
            (window + "  control ComboBox 1\n    selected -1", 3, "the number of an entry"),
            (window + "  control SysListView32 1\n    marked -1", 3, "the number of a row"),
            (window + "  control Button 1\n    class Button", 3, "a property of the window"),
            (window + "  on klick 1\n    close main", 2, "command, notification, key, character, text or close"),
            (window + "  on character a\n    close main", 2, "the code of the character"),
            (window + "  on key F6\n    close main", 2, "the code of the key"),
            (window + "  folder-to x", 2, "the id of a child"),
            (window + "  folder-to 1", 2, "the id of a child"),
            (window + "  control Button 1\n    folder-to 2", 3, "a property of the window"),
            (control + "    row main.1 a", 4, "the row's cells in double quotes"),
            (window + "  on command 1\n    clear fehlt.1", 3, "the name of a window of this file, or NAME.ID"),
            (window + "  on command", 2, "the id of the command"),
            (window + "  on notification 1", 2, "the code of the notification"),
            (window + "  on notification 1 32768\n    close main", 2, "the code of the notification"),
            (window + "  on notification 1 -1\n    close main", 2, "the code of the notification"),
            (window + "  on notification 1 1\n    close main", 2, "the id of a child"),
            (window + "  control ThunderRT6Frame 6\n    control ComboBox 1\n  on notification 1 1\n    close main", 4,
             "the id of a child"),
            (window + "  on command 1\n    after -1\n      close main", 3, "milliseconds"),
            (window + "  on command 1", 2, "indented actions below this line"),
            (window + "  on command 1\n    springe", 3, "one of the actions"),
            (window + "  on command 1\n    open fehlt", 3, "the name of a window of this file"),
            (window + "  on command 1\n    text fehlt.1 \"x\"", 3, "the name of a window of this file, or NAME.ID"),
            (window + "  on command 1\n    text main.x \"x\"", 3, "the name of a window of this file, or NAME.ID"),
            (control + "    text main.1", 4, "the new text in double quotes"),
            (window + "  on command 1\n    after bald\n      close main", 3, "milliseconds"),
            (window + "  on command 1\n    after 1", 3, "indented actions below this line"),
            (window + "  on command 1\n    close main\n      close main", 4, 'nothing below "close"'),
            (control + "    when main.1 offen\n      close main", 4, "selected and a number"),
            (window + '  on command 1\n    grow "C:\\x" -1', 3, "the bytes by which the file grows"),
            (window + "  hidden\n    hidden", 3, 'nothing below "hidden"'),
            ('file', 1, "the file's path"),
            ('file "C:\\x" y', 1, "the file's lines in double quotes"),
            ('file "C:\\x"\n  hidden', 2, 'nothing below "file"'),
            ('file "Q:\\x" "y"', 1, "a path of a drive that there is"),
            ('folder "C:\\x"\nfile "C:\\x" "y"', 2, "C:\\x cannot be made"),
            ('folder "Q:\\x"', 1, "a path of a drive that there is"),
            ('registry "a" "b"', 1, "the value's text"),
            ('environment "a"', 1, "the variable's text"),
            ('box hint "a"', 1, "the box's text"),
            ('box hint "a" "b" OK', 1, "the captions of the buttons"),
            ('box hint "a" "b"\n  closes-after', 2, "milliseconds"),
            ('box hint "a" "b"\n  closes-after -1', 2, "milliseconds"),
            ('box hint "a" "b"\n  closes-after 1 2', 2, 'the end of the line instead of "2"'),
            (window + "  closes-after 1", 2, "a property of the window"),
            ('missing-program', 1, "the command that starts no program"),
            ('missing-program fehlt.exe', 1, "the command that starts no program"),
            ('missing-program "a.exe" "b.exe"', 1, 'the end of the line instead of "b.exe"'),
            ('refuses-blockinput TRUE', 1, 'the end of the line instead of "TRUE"'),
            ('refuses-blockinput\n  hidden', 2, 'nothing below "refuses-blockinput"'),
            (window + 'after\n  close main', 2, "milliseconds"),
            (window + 'after bald\n  close main', 2, "milliseconds"),
            (window + 'after 10 20\n  close main', 2, 'the end of the line instead of "20"'),
            (window + 'after 10', 2, "indented actions below this line"),
            (window + 'after 10\n  close fehlt', 3, "the name of a window of this file, or NAME.ID"),
            (window + '  on command 1\n    copy', 3, "the name of a file"),
            (window + '  on command 1\n    copy "fehlt.csv" "C:\\a.csv"', 3, "the name of a file"),
            (window + '  on command 1\n    copy "test.desktop"', 3, "the new file's path"),
            (window + '  on command 1\n    copy "test.desktop" "C:\\a" 1000', 3, "the bytes that are copied, of "),
            (window + '  on command 1\n    copy "test.desktop" "C:\\a" -1', 3, "the bytes that are copied, of "),
            (window + '  on command 1\n    copy "test.desktop" "C:\\{a}"', 3, "{NAME.ID} or {NAME.ID/COLUMN}"),
            (control + '    when main.1 text\n      close main', 4, "a text in double quotes"),
            (control + '    when main.1 text "a" b\n      close main', 4, "another text in double quotes"),
        ]:
            with self.subTest(text=text):
                arguments = self.desktop(text)
                self.assertEqual(self.makrun(*arguments, self.macro("MSG=a"), status=66), [])
                self.assertTrue(self.errors.startswith(f"makrun: {arguments[1]}:{line}: expected "), self.errors)
                self.assertIn(expected, self.errors)
                self.makrun("--lang", "de", *arguments, self.macro("MSG=a"), status=66)
                self.assertTrue(self.errors.startswith(f"makrun: {arguments[1]}:{line}: erwartet: "), self.errors)
                self.assertNotIn(expected, self.errors)

    def test_a_target_that_is_not_there_is_a_mistake_with_its_line(self):
        window = ('window main "TeRu"\n'
                  '  control ThunderRT6Frame 61\n'
                  '    control ThunderRT6Textbox 2\n'
                  '  on command 1\n')
        behind = '\ndialog later "Später"\n  control Edit 5\n'
        target = "the name of a window of this file, or NAME.ID for a control of it, instead of"
        reference = "{NAME.ID} or {NAME.ID/COLUMN} for what a window of this file shows, instead of"
        for action, expected in [
            ('text main.62 "x"', f'{target} "main.62"'),
            ('text main.61.3 "x"', f'{target} "main.61.3"'),
            ('text main.2.61 "x"', f'{target} "main.2.61"'),
            ('text main.61. "x"', f'{target} "main.61."'),
            ('select later.6 1', f'{target} "later.6"'),
            ('when later.6 checked\n      close main', f'{target} "later.6"'),
            ('after 10\n      check main.60', f'{target} "main.60"'),
            ('text main.2 "{main.62}"', f'{reference} "{{main.62}}"'),
            ('clipboard "a" "{later.6}"', f'{reference} "{{later.6}}"'),
            ('write "C:\\{fehlt}.csv" "a"', f'{reference} "{{fehlt}}"'),
            ('append "C:\\a.csv" "{main.2/x}"', f'{reference} "{{main.2/x}}"'),
            ('grow "C:\\{main.2/}.csv" 1', f'{reference} "{{main.2/}}"'),
        ]:
            with self.subTest(action):
                arguments = self.desktop(window + "    " + action + behind)
                self.assertEqual(self.makrun(*arguments, self.macro("MSG=a"), status=66), [])
                line = 6 if action.startswith("after") else 5
                self.assertEqual(self.errors, f"makrun: {arguments[1]}:{line}: expected {expected}\n")
        # Windows and controls that are described further down, or that open later, are there.
        self.makrun(*self.desktop(window + '    text later.5 "{main.61.2} {later}"' + behind), self.macro("MSG=a"))

    def test_a_direct_child_comes_before_a_deeper_control_of_its_number(self):
        arguments = self.desktop(
            'window main "TeRu"\n'
            '  control ThunderRT6Frame 61\n'
            '    control ThunderRT6Frame 1\n'
            '      control ThunderRT6Textbox 3 "tief"\n'
            '      control ThunderRT6Textbox 2 "eins"\n'
            '    control ThunderRT6Frame 2\n'
            '      control ThunderRT6Textbox 2 "zwei"\n'
            '    control ThunderRT6Textbox 3 "flach"\n'
            '  on command 1\n'
            '    write "C:\\t.txt" "{main.61.2.2}" "{main.2.2}" "{main.3}" "{main.61.1.3}"\n')
        drive = self.folder / "drive"
        drive.mkdir()
        self.makrun(*arguments, "--drive", drive, self.macro("MENUCLICK=1,TeRu,1", "WAIT=1"))
        self.assertEqual((drive / "t.txt").read_text().split(), ["zwei", "zwei", "flach", "tief"])

    def test_the_first_window_is_in_front(self):
        arguments = self.desktop('# Kommentar\n\nwindow one "Eins ""A"""\nwindow two "Zwei"\n')
        log = self.makrun(*arguments, self.macro('IF ACTIVEWINDOW=Eins', "MSG=vorn", "ENDIF"))
        self.assertEqual(log, ["MSG: vorn", *COMPLETED])

    def test_controls_lists_and_reactions(self):
        arguments = self.desktop(
            'window main "TeRu"\n'
            '  control ThunderRT6Frame 1 "Rahmen"\n'
            '    control Button 2 "Haken"\n'
            '      style checkbox\n'
            '    control ComboBox 3\n'
            '      items "rot" "grün"\n'
            '    on notification 3 1\n'
            '      when main.3 selected 1\n'
            '        text main.5 "{main.6} gewählt"\n'
            '  control SysListView32 4\n'
            '    row "1" "eins"\n'
            '    row "2" "zwei"\n'
            '  control ThunderRT6Textbox 5 "alt"\n'
            '    on text\n'
            '      check main.2\n'
            '  control ThunderRT6Textbox 6 "fest"\n'
            '    refuses-text\n')
        log = self.makrun(*arguments, self.macro(
            "SELECTCOMBO=grün,3,TeRu,1", "GETTEXT=fest gewählt,5,TeRu,1", "SETTEXT=neu,5,TeRu,1",
            "GETCHECK=2,TeRu,1,Button,1,ThunderRT6Frame", "SETTEXT=fest,6,TeRu,1", "READLISTITEM=2,4,TeRu,1"))
        self.assertEqual(log[-8:], [
            "Die Auswahl der Combobox konnte erfolgreich ausgeführt werden. Sel: grün",
            "Das Textfeld konnte nicht gelesen werden. (fest gewählt)",
            "Das Textfeld wurde ausgefüllt (neu)", "Optionsfeld ist ausgewählt.", "Das Textfeld wurde ausgefüllt (fest)",
            "Der Wert 2 wurde in der Liste gefunden.", *COMPLETED])

    def test_a_box_is_answered_and_a_file_grows(self):
        arguments = self.desktop(
            'window main "TeRu"\n'
            '  on command 7\n'
            '    write "C:\\export.csv" "a"\n'
            '    after 2500\n'
            '      grow "C:\\export.csv" 10\n'
            '    after 4500\n'
            '      append "C:\\export.csv" "b"\n'
            '    open question\n'
            'box question "Frage" "Überschreiben?" "Ja" "Nein"\n'
            '  on command 6\n'
            '    text main "TeRu ja"\n')
        log = self.makrun(*arguments, self.macro(
            "MENUCLICK=7,TeRu,1", "WAITFORDIALOG=Frage,überschreiben", "WAITFORFILE=C:\\export.csv",
            "IF ACTIVEWINDOW=TeRu ja", "MSG=ja", "ENDIF"))
        self.assertEqual(log[1:], [
            "WaitForDialog: Frage / überschreiben", "Dialog Frage / Überschreiben? wurde mit Ja bestätigt.",
            "Datei wird eingelesen (3) ", "Datei wird eingelesen (13) ", "Datei wird eingelesen (16) ", "MSG: ja",
            *COMPLETED])

    def test_a_desktop_file_is_utf8_or_in_the_code_page(self):
        for title, encoding in [("Größe", "utf-8"), ("Größe", "utf-8-sig"), ("Größe", "cp1252"), ("À€", "cp1252"),
                                ("õ€€€", "cp1252"), ("Groß", "cp1252"), ("ä€€", "utf-8"), ("Ãü", "cp1252"),
                                ("😀", "utf-8")]:
            with self.subTest(title=title, encoding=encoding):
                path = self.file("test.desktop", f'# x\r\nwindow main "{title}"\r\n  class Form\r\n', encoding)
                shown = title.replace("😀", "?")
                macro = self.macro(f"IF ACTIVEWINDOW={shown}", "MSG=ja", "ENDIF")
                self.assertEqual(self.makrun("--desktop", path, macro), ["MSG: ja", *COMPLETED])

    def test_a_brace_that_is_not_closed_is_text(self):
        arguments = self.desktop(
            'window main "TeRu"\n  on command 1\n    text main "a{main} {b"\n')
        self.assertIn("MSG: ja", self.makrun(*arguments, self.macro(
            "MENUCLICK=1,TeRu,1", "WAIT=1", "IF ACTIVEWINDOW=aTeRu {b", "MSG=ja", "ENDIF")))

    def test_windows_come_to_the_front_unless_they_are_hidden_or_disabled(self):
        arguments = self.desktop(
            'window weg "Weg"\n  hidden\n'
            'window eins "Eins"\n  on command 1\n    close eins\n'
            'window grau "Grau"\n  disabled\n'
            'window zwei "Zwei"\n  on command 1\n    show weg\n    open weg\n  on command 2\n    hide zwei\n'
            '  on command 3\n    open nie\n'
            'dialog nie "Nie"\n')
        def front(title):
            return [f"IF ACTIVEWINDOW={title},TRUE", f"MSG={title}", "ENDIF"]
        log = self.makrun(*arguments, self.macro(
            *front("Eins"), *front("Nie"), "MENUCLICK=1,Eins,1", "WAIT=1", *front("Zwei"), "MENUCLICK=1,Zwei,1",
            "WAIT=1", *front("Weg"), "MENUCLICK=3,Zwei,1", "WAIT=1", *front("Nie")))
        self.assertEqual([line for line in log if line.startswith("MSG")],
                         ["MSG: Eins", "MSG: Zwei", "MSG: Weg", "MSG: Nie"])

    def test_classes_ids_places_and_check_marks(self):
        arguments = self.desktop(
            'window main "TeRu"\n'
            '  control Button 2 "Haken"\n'
            '    at 100 200 30 40\n'
            '    style checkbox\n'
            '    checked\n'
            '  control Button 3 "Wahl"\n'
            '    style option\n'
            '  control ThunderRT6Textbox 5 "vorher"\n'
            '  on command 1\n'
            '    when main.2 checked\n'
            '      append "C:\\Neu\\t.txt" "an"\n'
            '    when main.2 unchecked\n'
            '      append "C:\\Neu\\t.txt" "aus"\n'
            '    when main.5 text "vorher"\n'
            '      append "C:\\Neu\\t.txt" "alt"\n'
            '    uncheck main.2\n'
            '    text main.5 "nachher"\n'
            '  on close\n'
            '    append "C:\\Neu\\t.txt" "bleibt"\n'
            'folder "C:\\Neu\\Ordner"\n'
            'environment "temp" "C:\\Neu\\Ordner"\n')
        drive = self.folder / "drive"
        drive.mkdir()
        log = self.makrun(*arguments, "--drive", drive, self.macro(
            "MENUCLICK=1,TeRu,1", "WAIT=1", "MENUCLICK=1,TeRu,1", "WAIT=1", "CLOSEWINDOW=TeRu,1", "WAIT=1",
            "SETOPTION=3,TeRu,1,Button", "MOUSEMOVETOCTL=Button,Haken", "MSG=$TEMP"))
        self.assertEqual((drive / "Neu" / "t.txt").read_text().split(), ["an", "alt", "aus", "bleibt"])
        self.assertIn("MSG: C:\\Neu\\Ordner", log)
        self.assertTrue((drive / "Neu" / "Ordner").is_dir())
        self.assertIn("Maus an Koordinate bewegt: 105/205", log)

    def test_the_buttons_of_a_box_have_the_ids_of_the_system(self):
        arguments = self.desktop(
            'window main "TeRu"\n'
            '  on command 1\n'
            '    open question\n'
            'box question "Frage" "Weiter?" "OK" "Abbrechen" "Ja" "Nein" "Hilfe"\n'
            + "".join(f'  on command {id}\n    append "C:\\t.txt" "{id}"\n' for id in (1, 2, 6, 7, 105)))
        drive = self.folder / "drive"
        drive.mkdir()
        lines = []
        for id, caption in [(1, "OK"), (2, "Abbrechen"), (6, "Ja"), (7, "Nein"), (105, "Hilfe")]:
            lines += ["MENUCLICK=1,TeRu,1", "WAIT=1", f"BUTTONCLICK={id},Frage,1,{caption},Button", "WAIT=1",
                      "IF CONFIRMDIALOG=Frage,Weiter", "MSG=noch offen", "ENDIF"]
        self.assertNotIn("MSG: noch offen", self.makrun(*arguments, "--drive", drive, self.macro(*lines)))
        self.assertEqual((drive / "t.txt").read_text().split(), ["1", "2", "6", "7", "105"])

    def test_a_list_is_filled_and_selected_by_its_key_and_shows_its_rows(self):
        arguments = self.desktop(
            'window main "TeRu"\n'
            '  control SysListView32 4\n'
            '    row "alt" "0"\n'
            '    on character 1\n'
            '      select-all main.4\n'
            '  on command 1\n'
            '    clear main.4\n'
            '    row main.4 "eins" "1"\n'
            '    row main.4 "zwei" "2"\n'
            '  on command 2\n'
            '    clipboard "{main.4}"\n'
            '    write "C:\\t.txt" "{main.4}"\n')
        drive = self.folder / "drive"
        drive.mkdir()
        log = self.makrun(*arguments, "--drive", drive, self.macro(
            "MENUCLICK=1,TeRu,1", "SELECTALL=4,TeRu,1", "MENUCLICK=2,TeRu,1", "WAITFORCLIPBOARD"))
        self.assertIn("Die Liste wurde ausgewählt (2)", log)
        self.assertIn("Die Zwischenablage wurde gefüllt.", log)
        self.assertEqual((drive / "t.txt").read_bytes(), b"eins\t1\r\nzwei\t2\r\n")

    def test_a_key_reaches_a_list_and_a_cell_of_its_selected_row_is_used(self):
        arguments = self.desktop(
            'window main "TeRu"\n'
            '  control SysListView32 4\n'
            '    row "eins" "1"\n'
            '    row "zwei" "2"\n'
            '    on key 117\n'
            '      text main.5 "{main.4/1}+{main.4/2}+{nie.4/1}+{nie}."\n'
            '  control ThunderRT6Textbox 5\n'
            'dialog nie "Nie"\n'
            '  control SysListView32 4\n')
        log = self.makrun(*arguments, self.macro(
            "DIM A", "SENDKEY2={F6},4,TeRu,SysListView32", "A=READTEXT(5,TeRu,1,ThunderRT6Textbox)",
            "SELECTLIST=4,TeRu,1", "SELECTLIST=4,TeRu,1", "SENDKEY2={F6},4,TeRu,SysListView32",
            "A=READTEXT(5,TeRu,1,ThunderRT6Textbox)"))
        texts = [line for line in log if line.startswith("ReadText")]
        self.assertEqual(texts, ["ReadText: +++.", "ReadText: 1+++."])

    def test_a_folder_browser_takes_the_path(self):
        arguments = self.desktop(
            'window main "TeRu"\n'
            '  control ThunderRT6Textbox 5\n'
            'window browser "Ordner"\n'
            '  folder-to 7\n'
            '  control Static 7 "C:\\"\n'
            '  on command 1\n'
            '    text main.5 "{browser.7}"\n'
            '    close browser\n')
        log = self.makrun(*arguments, self.macro(
            "DIM A", "SETFOLDERPATH=Ordner,1,C:\\Größe", "MENUCLICK=1,Ordner,1", "WAIT=1",
            "A=READTEXT(5,TeRu,1,ThunderRT6Textbox)"))
        self.assertIn("ReadText: C:\\Größe", log)

    def test_a_combo_box_shows_the_entry_that_is_selected(self):
        arguments = self.desktop(
            'window main "TeRu"\n'
            '  control ComboBox 3\n'
            '    items "rot" "grün"\n'
            '    selected 1\n'
            '  control ThunderRT6Textbox 5\n'
            '  on command 1\n'
            '    text main.5 "{main.3}"\n'
            '    items main.3 "blau" "gelb"\n'
            '    text main.5 "{main.5}-{main.3}"\n'
            '    select main.3 1\n'
            '    text main.5 "{main.5}-{main.3}" "Zeile"\n')
        log = self.makrun(*arguments, self.macro(
            "DIM A", "MENUCLICK=1,TeRu,1", "WAIT=1", "A=READTEXT(5,TeRu,1,ThunderRT6Textbox)"))
        self.assertEqual(log[-4:], ["ReadText: grün--gelb", "Zeile", *COMPLETED])

    def test_a_registry_key_is_found_whatever_its_case(self):
        for key, name in [("Software\\TARVEN\\Setup\\Destinations", "Teru"),
                          ("SOFTWARE\\Tarven\\setup\\Destinations\\", "TERU")]:
            with self.subTest(key):
                arguments = self.desktop(f'window main "TeRu"\nregistry "{key}" "{name}" "C:\\Daten"\n')
                self.assertIn("MSG: C:\\Daten\\Extern", self.makrun(*arguments, self.macro("MSG=$TERUPATH")))

    def test_an_action_that_cannot_make_its_file_ends_with_66_and_names_the_file(self):
        arguments = self.desktop('window main "TeRu"\n  on command 7\n    write "Q:\\Größe.csv" "a"\n')
        self.makrun(*arguments, self.macro("MENUCLICK=7,TeRu,1", "WAIT=10"), status=66)
        self.assertIn("Q:\\Größe.csv cannot be made", self.errors)

    def kept_drive(self):
        drive = self.folder / "drive"
        drive.mkdir()
        return drive

    def test_a_file_beside_the_desktop_file_is_copied_and_can_grow(self):
        (self.folder / "Vorlage").mkdir()
        self.file("Vorlage/Größe.csv", "1000;Kasse\r\n1200;Bänke\r\n")
        arguments = self.desktop(
            'window main "TeRu"\n'
            '  on command 1\n'
            '    copy "Vorlage/Größe.csv" "C:\\{main}\\Größe.csv" 4\n'
            '    after 2500\n'
            '      copy "Vorlage/Größe.csv" "C:\\{main}\\Größe.csv"\n')
        drive = self.kept_drive()
        macro = self.macro("MENUCLICK=1,TeRu,1", "WAITFORFILE=C:\\TeRu\\Größe.csv")
        log = self.makrun(*arguments, "--drive", drive, macro)
        sizes = [line for line in log if line.startswith("Datei wird eingelesen")]
        self.assertEqual(list(dict.fromkeys(sizes)), ["Datei wird eingelesen (4) ", "Datei wird eingelesen (24) "])
        self.assertEqual((drive / "TeRu" / "Größe.csv").read_bytes(), b"1000;Kasse\r\n1200;B\xe4nke\r\n")

    def test_a_condition_holds_for_one_of_its_texts(self):
        arguments = self.desktop(
            'window main "TeRu"\n'
            '  control ThunderRT6Textbox 5\n'
            '    on text\n'
            '      when main.5 text "alt" "neu"\n'
            '        append "C:\\t.txt" "{main.5}"\n'
            '  on command 1\n'
            '    when main.5 text "alt" "neu"\n'
            '      append "C:\\t.txt" "{main.5}"\n')
        drive = self.kept_drive()
        lines = []
        for text in ("neu", "anders", "alt"):
            lines += [f"SETTEXT={text},5,TeRu,1,ThunderRT6Textbox", "MENUCLICK=1,TeRu,1", "WAIT=1"]
        self.makrun(*arguments, "--drive", drive, self.macro(*lines))
        self.assertEqual((drive / "t.txt").read_text().split(), ["neu", "neu", "alt"])

    def test_a_program_that_cannot_be_started_fails_its_verb(self):
        arguments = self.desktop('window main "TeRu"\nmissing-program "C:\\Weg\\größe.exe"\n')
        self.assertEqual(self.makrun(*arguments, self.macro("EXEC=C:\\Weg\\größe.exe"), status=1),
                         ["Programm kann nicht ausgeführt werden: C:\\Weg\\größe.exe"])
        self.assertEqual(self.makrun(*arguments, self.macro("EXEC=C:\\Weg\\da.exe"))[0],
                         "Programm wird ausgeführt: C:\\Weg\\da.exe")

    def test_a_refused_blockinput_fails_its_verb(self):
        macro = self.macro("BLOCKINPUT=TRUE", "MSG=gesperrt")
        self.assertEqual(self.makrun(*self.desktop('window main "TeRu"\n'), macro), ["MSG: gesperrt", *COMPLETED])
        arguments = self.desktop('window main "TeRu"\nrefuses-blockinput\n')
        self.assertEqual(self.makrun(*arguments, macro, status=1), [""])  # it fails without a text

    def test_a_box_closes_so_long_after_its_first_answer(self):
        arguments = self.desktop(
            'window main "TeRu"\n'
            '  on command 7\n'
            '    open question\n'
            'box question "Frage" "Weiter?" "OK"\n'
            '  closes-after 1500\n'
            '  on command 1\n'
            '    append "C:\\t.txt" "OK"\n')
        drive = self.kept_drive()
        look = ["IF CONFIRMDIALOG=Frage,Weiter", "MSG=da", "ELSE", "MSG=weg", "ENDIF"]
        log = self.makrun(*arguments, "--drive", drive, self.macro(
            "MENUCLICK=7,TeRu,1", "WAIT=10", *look, "WAIT=1400", *look, "WAIT=200", *look,
            # It can come up, and be answered, again.
            "MENUCLICK=7,TeRu,1", "WAIT=10", *look, "WAIT=1600", *look))
        self.assertEqual([line for line in log if line.startswith("MSG")],
                         ["MSG: da", "MSG: da", "MSG: weg", "MSG: da", "MSG: weg"])
        self.assertEqual((drive / "t.txt").read_text().split(), ["OK", "OK"])

    def test_the_desktop_changes_by_itself(self):
        arguments = self.desktop(
            'window main "TeRu"\n'
            '  control SysListView32 4\n'
            '    row "eins"\n'
            '  control ThunderRT6Textbox 5 "alt"\n'
            '  control ThunderRT6Frame 6\n'
            '    control ThunderRT6Textbox 7 "im Rahmen"\n'
            '  control ThunderRT6Textbox 7 "daneben"\n'
            'window notice "Hinweis"\n'
            'after 3000\n'
            '  open notice\n'
            '  row main.4 "zwei"\n'
            '  text main.5 "neu"\n'
            '  after 6000\n'
            '    close main.7\n'
            '    text main.7 "ohne Wirkung"\n'
            'after 15000\n'
            '  close main.6\n'
            '  close notice\n')
        look = ["IF ACTIVEWINDOW=Hinweis,TRUE", "MSG=Hinweis vorn", "ENDIF",
                "IF READLISTITEM=zwei,4,TeRu,1", "MSG=zwei Zeilen", "ENDIF",
                "A=READTEXT(5,TeRu,1,ThunderRT6Textbox)", "B=READTEXT(7,TeRu,1,ThunderRT6Textbox)", "MSG=-"]
        log = self.makrun(*arguments, "--resume", 9, self.macro(
            "DIM A", "DIM B", *look, "WAIT=5000", *look, "WAIT=5000", *look, "WAIT=5000", *look))
        self.assertEqual([line for line in log[:-2] if not line.startswith("Der Wert")], [
            "ReadText: alt", "ReadText: daneben", "MSG: -",
            "MSG: Hinweis vorn", "MSG: zwei Zeilen", "ReadText: neu", "ReadText: daneben", "MSG: -",
            # Now the one in the frame is the only one of its number.
            "MSG: Hinweis vorn", "MSG: zwei Zeilen", "ReadText: neu", "ReadText: im Rahmen", "MSG: -",
            "MSG: zwei Zeilen", "ReadText: neu", "ReadText konnte das Control nicht finden", "<Cancel>", "MSG: -"])

    # --- the documented examples

    def test_the_examples_of_the_documentation_print_their_logs(self):
        text = (ROOT / "docs" / "makrun.md").read_text()
        blocks = re.findall(r"^```(desktop|macro|log)\n(.*?)^```$", text, re.M | re.S)
        self.assertEqual([kind for kind, _ in blocks], ["desktop", "macro", "log"] * (len(blocks) // 3))
        bodies = [body for _, body in blocks]
        for desktop, macro, log in zip(bodies[0::3], bodies[1::3], bodies[2::3]):
            with self.subTest(desktop):
                status = 0 if log.splitlines()[-1] == STARS else 1
                path = self.macro(*macro.splitlines(), name="export.mak")
                self.assertEqual(self.makrun(*self.desktop(desktop), path, status=status), log.splitlines())

    def test_the_documentation_tells_what_is_said_of_fifteen_mistakes(self):
        text = (ROOT / "docs" / "makrun.md").read_text()
        example = text.split("\n## Example\n")[1]
        self.file("export.desktop", re.search(r"^```desktop\n(.*?)^```$", example, re.M | re.S)[1], "utf-8")
        titles = re.split(r"^### (\d+\. .*)\n", text, flags=re.M)[1:]
        self.assertEqual(len(titles), 2 * 15)
        for title, section in zip(titles[::2], titles[1::2]):
            with self.subTest(title):
                options, macro = re.search(r"^```mistake([^\n]*)\n(.*?)^```$", section, re.M | re.S).groups()
                options = options.split()
                encoding = "utf-8" if "utf-8" in options else "cp1252"
                self.file("mistake.mak", macro, encoding)
                done = subprocess.run([str(MAKRUN), "--lang", "en", "--desktop", "export.desktop",
                                       *[option for option in options if option != "utf-8"], "mistake.mak"],
                                      capture_output=True, timeout=60, cwd=self.folder)
                told = dict(re.findall(r"^```(said|logged)\n(.*?)^```$", section, re.M | re.S))
                self.assertTrue(told)
                for name, output in [("said", done.stderr), ("logged", done.stdout)]:
                    if name in told or name == "said":
                        lines = [line.rstrip() for line in output.decode().splitlines()]
                        self.assertEqual(lines, told.get(name, "").splitlines())


if __name__ == "__main__":
    unittest.main()
