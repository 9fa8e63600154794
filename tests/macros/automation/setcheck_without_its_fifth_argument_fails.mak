SETCHECK=1,2,TARVEN Datenexport,1
REM fehler: Das Optionsfeld konnte nicht gefunden werden.
