REM No window is in front on this desktop.
MENUCLICK=40001,%MAINWINDOW%
REM erwartet: MainWindow: 0
REM fehler: Das Menu konnte nicht gefunden werden.
