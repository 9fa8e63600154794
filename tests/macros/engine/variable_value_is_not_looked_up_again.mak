REM The value of a is the name of b, which is not looked up in its turn.
DIM a
a=VALUE(b)
REM erwartet: Variable wurde befüllt: b
DIM b
b=VALUE(c)
REM erwartet: Variable wurde befüllt: c
MSG=a
REM erwartet: MSG: b
