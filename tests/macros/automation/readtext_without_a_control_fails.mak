READTEXT=1,Export,1
REM fehler: ReadText konnte das Control nicht finden
