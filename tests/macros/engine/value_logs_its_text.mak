REM Also as a command, where the result is dropped.
VALUE=a,b
REM erwartet: Variable wurde befüllt: a
VALUE
REM erwartet: Variable wurde befüllt: 
