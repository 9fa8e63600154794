REM Each argument is replaced by itself.
DIM x
x=VALUE(1)
REM erwartet: Variable wurde befüllt: 1
IF STRCOMP=x,x
REM erwartet: STRCOMP: 1, 1 = True
ENDIF
IF STRCOMP=1,x
REM erwartet: STRCOMP: 1, 1 = True
ENDIF
