REM The condition has written LastError without failing the run; that text stays until it is overwritten.
IF BUTTONCLICK=1,gibt es nicht
ENDIF
MOUSECLICK=MIDDLE
REM fehler: Die Schaltfläche konnte nicht ausgewählt werden.
