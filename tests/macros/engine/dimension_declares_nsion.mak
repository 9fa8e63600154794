REM The name of a declaration is the text from the fifth character on.
DIMENSION
NSION=VALUE(5)
REM erwartet: Variable wurde befüllt: 5
MSG=NSION
REM erwartet: MSG: 5
MSG=ENSION
REM erwartet: MSG: ENSION
