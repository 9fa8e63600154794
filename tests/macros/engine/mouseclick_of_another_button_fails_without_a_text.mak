REM LastError stays as it was, which is empty at the start of a run.
MOUSECLICK=MIDDLE
REM fehler: 
