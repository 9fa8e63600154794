IF MENUCLICK=40001,%mainwindow%
MSG=nie
ELSE
MSG=kein Fenster
REM erwartet: MSG: kein Fenster
ENDIF
