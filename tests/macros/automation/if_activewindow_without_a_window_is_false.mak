IF ACTIVEWINDOW=Export
MSG=nie
ENDIF
IF ACTIVEWINDOW=Export,True
MSG=nie
ELSE
MSG=kein Fenster
REM erwartet: MSG: kein Fenster
ENDIF
