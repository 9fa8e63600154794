REM The walk ends when the index has passed the last year and there is no list row left.
REM einstellung: [Einkommensteuer]
REM einstellung: Veranlagungsjahr=2003,2004,2005
DO
MSG=$WJ
NEXT VJ
LOOP UNTIL COUNT
MSG=fertig
REM erwartet: MSG: 2003
REM erwartet: NextYear
REM erwartet: Loop: YearCount=2 CurrYear=1
REM erwartet: MSG: 2004
REM erwartet: NextYear
REM erwartet: Loop: YearCount=2 CurrYear=2
REM erwartet: MSG: 2005
REM erwartet: NextYear
REM erwartet: Loop: YearCount=2 CurrYear=3
REM erwartet: MSG: fertig
