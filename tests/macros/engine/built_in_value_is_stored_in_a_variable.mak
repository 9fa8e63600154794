REM The value of the moment of the assignment stays.
DIM x
x=VALUE($NOW)
REM erwartet: Variable wurde befüllt: 14.03.2006 09:30:00
WAIT=1000
MSG=x
REM erwartet: MSG: 14.03.2006 09:30:00
