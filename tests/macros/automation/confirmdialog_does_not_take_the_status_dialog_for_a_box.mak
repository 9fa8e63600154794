DISPLAYSTATUS=fertig
REM erwartet: fertig
IF CONFIRMDIALOG=TARVEN,fertig
REM erwartet: ConfirmDialog: TARVEN / fertig
MSG=nie
ELSE
MSG=kein Kasten
REM erwartet: MSG: kein Kasten
ENDIF
