REM Names are compared with their case.
DIM x
X=VALUE(1)
REM fehler: Unknown Command: X
