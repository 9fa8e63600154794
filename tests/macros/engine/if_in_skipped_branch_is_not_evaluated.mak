REM It writes nothing to the log, and the branch stays skipped until ELSE or ENDIF.
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
IF STRCOMP=a,a
MSG=1
ELSE
MSG=2
REM erwartet: MSG: 2
ENDIF
