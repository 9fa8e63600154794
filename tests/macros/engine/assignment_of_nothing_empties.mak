REM A line that is only the name, or the name and "=", runs no verb and empties the variable.
DIM x
x=VALUE(1)
REM erwartet: Variable wurde befüllt: 1
x
MSG=x
REM erwartet: MSG: 
x=VALUE(2)
REM erwartet: Variable wurde befüllt: 2
x=
MSG=x
REM erwartet: MSG: 
