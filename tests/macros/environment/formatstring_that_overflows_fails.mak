REM fehler: Fehler in Funktion FormatString:Überlauf
FORMATSTRING=3000000000,0,LONG
MSG=nie
