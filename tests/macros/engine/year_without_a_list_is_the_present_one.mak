REM No setting, no list.
MSG=$WJ
REM erwartet: MSG: 2006
