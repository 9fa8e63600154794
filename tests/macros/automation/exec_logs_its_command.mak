EXEC=notepad.exe C:\x.txt
REM erwartet: Programm wird ausgeführt: notepad.exe C:\x.txt
IF EXE=notepad.exe
REM erwartet: Programm wird ausgeführt: notepad.exe
MSG=läuft
REM erwartet: MSG: läuft
ENDIF
