REM A verb without a result runs and leaves the variable empty.
DIM x
x=VALUE(1)
REM erwartet: Variable wurde befüllt: 1
x=MSG(Hallo)
REM erwartet: MSG: Hallo
MSG=x
REM erwartet: MSG: 
