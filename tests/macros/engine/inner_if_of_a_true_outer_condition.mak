REM The inner condition takes the place of the outer one.
IF STRCOMP=a,a
REM erwartet: STRCOMP: a, a = True
IF STRCOMP=c,d
REM erwartet: STRCOMP: c, d = False
MSG=1
ENDIF
MSG=2
REM erwartet: MSG: 2
ELSE
MSG=3
ENDIF
