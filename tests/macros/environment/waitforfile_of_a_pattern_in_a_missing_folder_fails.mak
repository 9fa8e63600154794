WAITFORFILE=C:\fehlt\*.txt
REM fehler: Fehler in Funktion WaitForFile:Pfad nicht gefunden
