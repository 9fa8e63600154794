REM The end of the file in a skipped branch is no failure.
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
MSG=übergangen
