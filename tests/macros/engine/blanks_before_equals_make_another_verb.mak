REM Nothing is trimmed around "=".
SETTEXT =abc
REM fehler: Unknown Command: SETTEXT 
