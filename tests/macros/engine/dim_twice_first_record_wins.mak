REM A second declaration of a name adds a record that no look-up finds, so the value stays.
DIM x
x=VALUE(1)
REM erwartet: Variable wurde befüllt: 1
DIM x
MSG=x
REM erwartet: MSG: 1
x=VALUE(2)
REM erwartet: Variable wurde befüllt: 2
MSG=x
REM erwartet: MSG: 2
