REM The verb does not run, its result is empty, and the variable becomes empty.
DIM x
x=VALUE(1)
REM erwartet: Variable wurde befüllt: 1
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
x=VALUE(2)
ENDIF
MSG=x
REM erwartet: MSG: 
