REM einstellung: [allgemein]
REM einstellung: gdpdu = "1"
IF GDPDU=1
MSG=an
REM erwartet: MSG: an
ENDIF
IF GDPDU=01
MSG=nie
ENDIF
