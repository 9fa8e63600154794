REM The loop end that comes later sends the run back to the DO that was left by a jump.
REM einstellung: [Einkommensteuer]
REM einstellung: Veranlagungsjahr=2003,2004
DO
MSG=$WJ
GOTO=draußen
MSG=übersprungen
MARK=draußen
NEXT VJ
LOOP UNTIL COUNT
REM erwartet: MSG: 2003
REM erwartet: Sprungmarke (MARK=DRAUßEN) gefunden: 7
REM erwartet: NextYear
REM erwartet: Loop: YearCount=1 CurrYear=1
REM erwartet: MSG: 2004
REM erwartet: Sprungmarke (MARK=DRAUßEN) gefunden: 7
REM erwartet: NextYear
REM erwartet: Loop: YearCount=1 CurrYear=2
