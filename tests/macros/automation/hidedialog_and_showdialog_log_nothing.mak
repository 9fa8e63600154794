HIDEDIALOG
SHOWDIALOG
MSG=weiter
REM erwartet: MSG: weiter
