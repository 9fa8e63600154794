REM At the next pass of the run, like any other line.
DO
MSG=da
STOP
LOOP UNTIL COUNT
REM erwartet: MSG: da
REM angehalten
