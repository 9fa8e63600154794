REM Also without a name or with more than one.
MARK
MARK=a
MARK=a,b
MSG=da
REM erwartet: MSG: da
