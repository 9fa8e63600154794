REM The empty name takes the place of every argument that is empty or absent behind a "=".
DIM
=VALUE(5)
REM erwartet: Variable wurde befüllt: 5
MSG=
REM erwartet: MSG: 5
IF STRCOMP=5
REM erwartet: STRCOMP: 5, 5 = True
ENDIF
MSG
REM erwartet: MSG: 
