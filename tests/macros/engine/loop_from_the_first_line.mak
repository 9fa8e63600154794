DO
REM A loop whose DO is line 0 goes back all the same.
REM einstellung: [Einkommensteuer]
REM einstellung: Veranlagungsjahr=2003,2004
MSG=$WJ
NEXT VJ
LOOP UNTIL COUNT
REM erwartet: MSG: 2003
REM erwartet: NextYear
REM erwartet: Loop: YearCount=1 CurrYear=1
REM erwartet: MSG: 2004
REM erwartet: NextYear
REM erwartet: Loop: YearCount=1 CurrYear=2
