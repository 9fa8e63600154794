REM An absent argument is the empty text.
SLEEP
REM fehler: 
