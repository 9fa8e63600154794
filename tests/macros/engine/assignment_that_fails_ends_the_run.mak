REM An unknown verb fails in an assignment as well.
DIM x
x=FOO(1)
REM fehler: Unknown Command: FOO
