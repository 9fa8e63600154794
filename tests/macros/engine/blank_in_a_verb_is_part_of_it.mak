REM Two blanks are another verb.
IF  STRCOMP=a,b
REM fehler: Unknown Command: IF  STRCOMP
