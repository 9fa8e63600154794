REM DIM is no verb either.
DIM x
x=DIM(y)
REM fehler: Unknown Command: DIM
