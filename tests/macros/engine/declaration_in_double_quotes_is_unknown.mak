REM A double quote in front makes the declaration a command.
"DIM x"
REM fehler: Unknown Command: DIM X
