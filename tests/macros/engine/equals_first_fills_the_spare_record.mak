REM With one variable declared the empty name matches the spare record, whose value the next declaration inherits.
DIM x
=VALUE(5)
REM erwartet: Variable wurde befüllt: 5
MSG=
REM erwartet: MSG: 
DIM y
MSG=y
REM erwartet: MSG: 5
DIM z
MSG=z
REM erwartet: MSG: 
