REM Exact comparison; the default is 0.
IF GDPDU=1
MSG=1
ELSE
MSG=nicht 1
REM erwartet: MSG: nicht 1
ENDIF
IF GDPDU=0
MSG=0
REM erwartet: MSG: 0
ENDIF
