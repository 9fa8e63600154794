REM A forced action: no such dialog, and the run goes on.
CONFIRMDIALOG=x,y
REM erwartet: ConfirmDialog: x / y
MSG=da
REM erwartet: MSG: da
