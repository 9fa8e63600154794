SELECTALL=1,Export,1
REM fehler: Die Liste konnte nicht ausgewählt werden.
