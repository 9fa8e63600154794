DO
REM There is no nesting: the inner loop has left no start, so the outer end goes back to line 0.
REM einstellung: [Einkommensteuer]
REM einstellung: Veranlagungsjahr=2003,2004,2005
IF STRCOMP=$WJ,2006
STOP
ENDIF
MSG=außen
DO
NEXT VJ
LOOP UNTIL COUNT
NEXT VJ
LOOP UNTIL COUNT
MSG=nie
REM erwartet: STRCOMP: 2003, 2006 = False
REM erwartet: MSG: außen
REM erwartet: NextYear
REM erwartet: Loop: YearCount=2 CurrYear=1
REM erwartet: NextYear
REM erwartet: Loop: YearCount=2 CurrYear=2
REM erwartet: NextYear
REM erwartet: Loop: YearCount=2 CurrYear=3
REM erwartet: NextYear
REM erwartet: Loop: YearCount=2 CurrYear=4
REM erwartet: STRCOMP: 2006, 2006 = True
REM angehalten
