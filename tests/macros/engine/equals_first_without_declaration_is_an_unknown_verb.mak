REM With nothing declared there is no record that the empty name could match.
=VALUE(5)
REM fehler: Unknown Command: 
