IF GDPDU=1
MSG=nie
ELSE
MSG=aus
REM erwartet: MSG: aus
ENDIF
IF GDPDU=0
MSG=null
REM erwartet: MSG: null
ENDIF
