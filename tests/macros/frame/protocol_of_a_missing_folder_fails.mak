CREATEPROTOCOL=C:\fehlt\x.txt
MSG=nie
REM fehler: Fehler in Funktion CreateProtocol:Pfad nicht gefunden
