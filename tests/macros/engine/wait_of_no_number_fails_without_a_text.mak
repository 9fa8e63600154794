REM The failure has no text of its own.
WAIT=abc
REM fehler: 
