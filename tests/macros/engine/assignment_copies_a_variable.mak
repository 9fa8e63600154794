REM A variable as the argument gives its value.
DIM a
DIM b
a=VALUE(1)
REM erwartet: Variable wurde befüllt: 1
b=VALUE(a)
REM erwartet: Variable wurde befüllt: 1
a=VALUE(2)
REM erwartet: Variable wurde befüllt: 2
MSG=b
REM erwartet: MSG: 1
