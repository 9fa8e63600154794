IF MENUCLICK=1,Export,1
ENDIF
GETTEXT=,1,Export,1
REM fehler: Das Menu konnte nicht gefunden werden.
