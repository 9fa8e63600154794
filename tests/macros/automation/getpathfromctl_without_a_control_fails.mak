GETPATHFROMCTL=1,Export,1,Edit
REM fehler: Pfad konnte nicht ermittelt werden.
