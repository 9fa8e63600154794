REM Without an argument the text of the failure is empty, whatever was there before.
IF BUTTONCLICK=1,gibt es nicht
ENDIF
RAISEERROR
REM fehler: 
