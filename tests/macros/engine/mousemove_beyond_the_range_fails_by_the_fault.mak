REM More than 32 bits.
MOUSEMOVE=2147483648,0
REM fehler: Fehler in Funktion MakroExecute:Überlauf
