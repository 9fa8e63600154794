REM An own name with "$" is a variable like any other; one that is built in is expanded before arguments are looked up.
DIM $x
$x=VALUE(1)
REM erwartet: Variable wurde befüllt: 1
MSG=$x
REM erwartet: MSG: 1
DIM $DATE
$DATE=VALUE(2)
REM erwartet: Variable wurde befüllt: 2
MSG=$DATE
REM erwartet: MSG: 14.03.2006
