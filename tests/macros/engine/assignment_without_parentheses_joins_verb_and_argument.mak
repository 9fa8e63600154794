REM Without a parenthesis there is nothing that would become a "=" again.
DIM x
x=VALUE=5
REM fehler: Unknown Command: VALUE5
