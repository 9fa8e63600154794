REM It is an action.
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
STOP
HOLD
ENDIF
MSG=da
REM erwartet: MSG: da
