REM The text before "=" is compared with nothing trimmed, so this is no assignment.
DIM x
x = VALUE(1)
REM fehler: Unknown Command: X 
