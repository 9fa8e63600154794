REM A declaration counts also on the skipped side of a condition.
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
DIM x
ENDIF
x=VALUE(3)
REM erwartet: Variable wurde befüllt: 3
MSG=x
REM erwartet: MSG: 3
