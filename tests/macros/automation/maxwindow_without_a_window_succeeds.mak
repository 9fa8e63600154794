MAXWINDOW
REM erwartet: Fenster wurde maximiert.
