REM Each ELSE inverts the flag.
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
MSG=1
ELSE
MSG=2
REM erwartet: MSG: 2
ELSE
MSG=3
ELSE
MSG=4
REM erwartet: MSG: 4
ENDIF
MSG=5
REM erwartet: MSG: 5
