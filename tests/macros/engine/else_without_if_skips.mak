REM ELSE inverts always, so without a condition it begins a skipped branch.
ELSE
MSG=übergangen
ENDIF
MSG=da
REM erwartet: MSG: da
