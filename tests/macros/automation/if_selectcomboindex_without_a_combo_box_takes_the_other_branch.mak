IF SELECTCOMBOINDEX=0,1,Export,1
REM erwartet: Select Combo-> HWNDCTL: 0Parent: 0
MSG=nie
ELSE
MSG=keine Combobox
REM erwartet: MSG: keine Combobox
ENDIF
