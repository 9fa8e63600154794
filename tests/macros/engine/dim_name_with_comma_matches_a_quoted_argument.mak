REM The name is compared with the argument after its single quotes are gone.
DIM a,b
a,b=VALUE(9)
REM erwartet: Variable wurde befüllt: 9
MSG='a,b'
REM erwartet: MSG: 9
MSG=a,b
REM erwartet: MSG: a
