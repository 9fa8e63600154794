SETOPTION=1,Export,1
REM fehler: SetOption konnte das Control nicht finden
