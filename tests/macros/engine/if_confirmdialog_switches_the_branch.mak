REM The condition of the same handler takes its result.
IF CONFIRMDIALOG=x,y
REM erwartet: ConfirmDialog: x / y
MSG=bestätigt
ELSE
MSG=kein Dialog
REM erwartet: MSG: kein Dialog
ENDIF
