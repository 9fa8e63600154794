REM Nothing behind the failed line runs.
MSG=davor
REM erwartet: MSG: davor
RAISEERROR=Text
MSG=danach
REM fehler: Text
