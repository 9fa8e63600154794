REM The three letters of a declaration may be written in any case.
dim a
Dim b
a=VALUE(1)
REM erwartet: Variable wurde befüllt: 1
b=VALUE(2)
REM erwartet: Variable wurde befüllt: 2
IF STRCOMP=a,b
REM erwartet: STRCOMP: 1, 2 = False
ENDIF
