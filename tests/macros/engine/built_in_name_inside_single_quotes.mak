REM Single quotes do not keep a name from being replaced.
MSG='$DATE,1'
REM erwartet: MSG: 14.03.2006,1
