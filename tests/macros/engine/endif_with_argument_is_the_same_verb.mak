REM Branch words take no arguments and do not mind them.
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
ELSE=1
MSG=da
REM erwartet: MSG: da
ENDIF=1
