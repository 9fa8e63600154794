REM The message is an argument like any other.
DIM Grund
Grund=VALUE(zu spät)
REM erwartet: Variable wurde befüllt: zu spät
RAISEERROR=Grund
REM fehler: zu spät
