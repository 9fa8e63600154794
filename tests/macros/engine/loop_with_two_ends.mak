REM The first end that wants another pass goes back; the second one is reached when the first has finished.
REM einstellung: [Einkommensteuer]
REM einstellung: Veranlagungsjahr=2003
MSG=$WJ
REM erwartet: MSG: 2003
DO
NEXT VJ
LOOP UNTIL COUNT
LOOP UNTIL COUNT
REM erwartet: NextYear
REM erwartet: Loop: YearCount=0 CurrYear=1
REM erwartet: Loop: YearCount=0 CurrYear=1
