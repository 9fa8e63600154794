"""A macro against programs that are not ours: the editor and the task manager that come with the system."""

import re
import unittest

from harness import COMPLETED, STARS, EndToEndTest
from probe import WM_CLOSE

EDITOR, TASKS = "(unbenannt) - Editor", "Task-Manager"
FOUND = "Warten auf Fenster war erfolgreich."


class ForeignProgramTest(EndToEndTest):
    maxDiff = None

    MACRO = """\
SETTEXT=Sehr geehrter Herr Großkopf,0,- Editor,0,Edit
IF GETTEXT=Sehr geehrter Herr Großkopf,0,- Editor
MSG=der Text steht da
ENDIF
REM --- Die Suche findet nichts und sagt es.
MENUCLICK=288,%MAINWINDOW%
WAITFORWINDOW=Suchen,1,,Edit,1152
SETTEXT=Frau,1152,Suchen,1,Edit
BUTTONCLICK=1,Suchen,1
WAITFORDIALOG=Editor,NICHT GEFUNDEN
WAIT=200
BUTTONCLICK=2,Suchen,1
REM --- Alles markieren, kopieren, einfügen: Danach ist der Text geändert.
MENUCLICK=278,%MAINWINDOW%
MENUCLICK=274,%MAINWINDOW%
WAITFORCLIPBOARD
MENUCLICK=275,%MAINWINDOW%
REM --- Der Task-Manager führt den Editor in seiner Liste.
EXEC=taskmgr.exe
WAITFORWINDOW=Task-Manager,1,,SysListView32,1016
WAIT=1000
READLISTITEM=(unbenannt) - Editor,1016,Task-Manager,1
SELECTLIST=1016,Task-Manager,1
GETANLLIST=1,1016,Task-Manager
REM --- Die Frage am Ende hat die Schaltflächen "&Ja" und "&Nein".
MENUCLICK=264,%MAINWINDOW%
WAIT=500
IF CONFIRMDIALOG=Editor,Änderungen
MSG=angeblich bestätigt
ENDIF
BUTTONCLICK=7,Editor,1
"""

    def test_macro_works_through_editor_and_task_manager(self):
        self.addCleanup(self.close, TASKS)
        self.addCleanup(self.close, EDITOR)
        self.start_program()
        self.lay_macro(self.MACRO, fragment="Editor")
        self.start("notepad")
        editor = self.probe.window(EDITOR)
        self.press("(unbenannt)")
        self.wait_run_ended()
        self.probe.wait_gone(editor)

        log = self.log()
        log = log[log.index("MakroFile: PROBE.MAK") + 1 :]
        main, menu = f"MainWindow: {editor.handle}", f"Menu wurde ausgewählt (%d {editor.handle})"
        log = "\n".join(log)
        # The handles of buttons that are gone cannot be asked for.
        log = re.sub(r"gedrückt\. \(\d+ ", "gedrückt. (? ", log)
        # Wine 8 says "kann", as Windows does, Wine 10 "konnte".
        log = re.sub(r"(?:kann|konnte) nicht gefunden", "? nicht gefunden", log)
        self.assertEqual(
            log.split("\n"),
            [
                "Das Textfeld wurde ausgefüllt (Sehr geehrter Herr Großkopf)",
                "Das Textfeld konnte nicht gelesen werden. (Sehr geehrter Herr Großkopf)",
                "MSG: der Text steht da",
                main,
                menu % 288,
                FOUND,
                "Das Textfeld wurde ausgefüllt (Frau)",
                "Schaltfläche wurde gedrückt. (? 1)",
                "WaitForDialog: Editor / NICHT GEFUNDEN",
                "Dialog Editor / 'Frau' ? nicht gefunden werden. wurde mit OK bestätigt.",
                "Schaltfläche wurde gedrückt. (? 2)",
                main,
                menu % 278,
                main,
                menu % 274,
                "Die Zwischenablage wurde gefüllt.",
                main,
                menu % 275,
                "Programm wird ausgeführt: taskmgr.exe",
                FOUND,
                "Der Wert (unbenannt) - Editor wurde in der Liste gefunden.",
                "SelectList 1",
                "GetListItemText läuft(0)",
                "läuft",
                main,
                menu % 264,
                "ConfirmDialog: Editor / Änderungen",
                "Dialog Editor / Datei (unbenannt) wurde geändert.",
                "",
                "Möchten Sie die Änderungen speichern? wurde mit Ja bestätigt.",
                "MSG: angeblich bestätigt",
                "Schaltfläche wurde gedrückt. (? 7)",
                COMPLETED,
                STARS,
                "",
            ],
        )

    def close(self, title):
        for window in self.probe.windows(title):
            self.probe.post(window, WM_CLOSE)
            self.probe.wait_gone(window)


if __name__ == "__main__":
    unittest.main()
