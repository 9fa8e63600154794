REM An argument must equal the name exactly, case included.
DIM x
x=VALUE(5)
REM erwartet: Variable wurde befüllt: 5
MSG=x
REM erwartet: MSG: 5
MSG=x,y
REM erwartet: MSG: 5
MSG=xx
REM erwartet: MSG: xx
msg=X
REM erwartet: MSG: X
MSG= x
REM erwartet: MSG:  x
MSG='x'
REM erwartet: MSG: 5
