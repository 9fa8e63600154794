MENUCLICK=40001,Export,1
REM fehler: Das Menu konnte nicht gefunden werden.
