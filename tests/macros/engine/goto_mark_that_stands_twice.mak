REM The first of two equal marks is jumped to, also from behind both.
GOTO=Ziel
REM erwartet: Sprungmarke (MARK=ZIEL) gefunden: 4
MSG=übersprungen
MARK=Ziel
MSG=erste
REM erwartet: MSG: erste
STOP
MARK=Ziel
MSG=zweite
REM angehalten
