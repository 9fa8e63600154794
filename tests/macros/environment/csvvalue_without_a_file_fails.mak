REM fehler: GetCSVValue: Trennzeichen in Zeile '' nicht vorhanden.
CSVVALUE=0
MSG=nie
