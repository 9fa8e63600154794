REM The inner IF is skipped, so the inner ELSE flips the flag of the outer one.
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
IF STRCOMP=c,c
MSG=1
ELSE
MSG=2
REM erwartet: MSG: 2
ENDIF
