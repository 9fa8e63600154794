REM The general date format; a wait moves the clock, and the next visit reads it anew.
MSG=$NOW
REM erwartet: MSG: 14.03.2006 09:30:00
WAIT=61000
MSG=$NOW
REM erwartet: MSG: 14.03.2006 09:31:01
