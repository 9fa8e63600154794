REM HOLD is the same command.
HOLD
MSG=nie
REM angehalten
