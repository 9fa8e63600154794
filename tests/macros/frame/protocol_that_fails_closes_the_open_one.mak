CREATEPROTOCOL=x.txt
CREATEPROTOCOL=a?b.txt
REM fehler: Fehler in Funktion CreateProtocol:Falscher Dateiname
