REM There is no nesting: what follows the inner ENDIF runs, though the outer condition is false.
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
IF STRCOMP=c,c
MSG=1
ENDIF
MSG=2
REM erwartet: MSG: 2
ENDIF
MSG=3
REM erwartet: MSG: 3
