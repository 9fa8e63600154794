DISPLAYSTATUS=%1 von %2 und %1,3
REM erwartet: 3 von %2 und 3
DISPLAY=%1 bleibt
REM erwartet: %1 bleibt
