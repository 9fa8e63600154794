REM Only the ELSE side of a false condition runs.
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
MSG=1
ELSE
MSG=2
REM erwartet: MSG: 2
ENDIF
