REM The same line is an assignment once the name is declared.
DIM x
x=VALUE(1)
REM erwartet: Variable wurde befüllt: 1
MSG=x
REM erwartet: MSG: 1
