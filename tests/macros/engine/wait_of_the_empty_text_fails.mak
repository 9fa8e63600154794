REM The empty text is not numeric.
WAIT=
REM fehler: 
