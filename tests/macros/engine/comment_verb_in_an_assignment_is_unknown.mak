REM Comments and declarations are forms of a line and no verbs, so an assignment cannot call them.
DIM x
x=REM(1)
REM fehler: Unknown Command: REM
