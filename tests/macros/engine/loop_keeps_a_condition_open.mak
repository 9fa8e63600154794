REM A loop does not touch the condition: the second pass runs the DO and the body in the branch of the first.
REM einstellung: [Einkommensteuer]
REM einstellung: Veranlagungsjahr=2003,2004
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
ELSE
DO
MSG=$WJ
NEXT VJ
LOOP UNTIL COUNT
ELSE
MSG=nie
ENDIF
REM erwartet: MSG: 2003
REM erwartet: NextYear
REM erwartet: Loop: YearCount=1 CurrYear=1
REM erwartet: MSG: 2004
REM erwartet: NextYear
REM erwartet: Loop: YearCount=1 CurrYear=2
