REM Declared variables make no difference to it.
DIM x
MSG(x)
REM fehler: Unknown Command: MSG(X)
