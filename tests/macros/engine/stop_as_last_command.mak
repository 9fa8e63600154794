REM The run ends as stopped and not as completed.
MSG=da
REM erwartet: MSG: da
STOP
REM angehalten
