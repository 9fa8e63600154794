REM What fails the run as an action only switches the branch as a condition.
IF BUTTONCLICK=1,gibt es nicht
MSG=gedrückt
ELSE
MSG=nicht gedrückt
REM erwartet: MSG: nicht gedrückt
ENDIF
BUTTONCLICK=1,gibt es nicht
REM fehler: Die Schaltfläche konnte nicht ausgewählt werden.
