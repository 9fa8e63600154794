REM It does nothing there, so the body runs once.
REM einstellung: [Einkommensteuer]
REM einstellung: Veranlagungsjahr=2003,2004
DO
MSG=$WJ
REM erwartet: MSG: 2003
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
LOOP UNTIL COUNT
ENDIF
MSG=fertig
REM erwartet: MSG: fertig
