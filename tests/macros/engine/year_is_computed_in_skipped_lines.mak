REM A skipped line is parsed all the same: $WJ sets the count of years that the loop end looks at.
REM einstellung: [Einkommensteuer]
REM einstellung: Veranlagungsjahr=2003,2004
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
MSG=$WJ
ENDIF
DO
NEXT VJ
LOOP UNTIL COUNT
REM erwartet: NextYear
REM erwartet: Loop: YearCount=1 CurrYear=1
REM erwartet: NextYear
REM erwartet: Loop: YearCount=1 CurrYear=2
