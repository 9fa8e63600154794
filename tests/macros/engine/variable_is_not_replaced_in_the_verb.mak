REM The quotes keep the line from being an assignment; the verb is V and not the value.
DIM V
V=VALUE(MSG)
REM erwartet: Variable wurde befüllt: MSG
"V"=Hallo
REM fehler: Unknown Command: V
