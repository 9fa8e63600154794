WAITFORFILE=*.txt
REM fehler: Fehler in Funktion WaitForFile:Pfad nicht gefunden
