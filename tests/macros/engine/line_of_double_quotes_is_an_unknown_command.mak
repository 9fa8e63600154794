REM Nothing is left of the line, so the verb is empty.
""
REM fehler: Unknown Command: 
