REM The word is reported in upper case, umlauts included.
Prüfe=1
REM fehler: Unknown Command: PRÜFE
