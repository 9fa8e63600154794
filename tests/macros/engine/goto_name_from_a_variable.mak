REM The name is an argument, so a variable gives it.
DIM Ziel
Ziel=VALUE(hinten)
REM erwartet: Variable wurde befüllt: hinten
GOTO=Ziel
REM erwartet: Sprungmarke (MARK=HINTEN) gefunden: 8
MSG=übersprungen
MARK=Ziel
MARK=hinten
MSG=da
REM erwartet: MSG: da
