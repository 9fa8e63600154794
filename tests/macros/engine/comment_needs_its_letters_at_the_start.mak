REM A double quote in front makes the comment a command, since quotes are removed later.
"REM x"
REM fehler: Unknown Command: REM X
