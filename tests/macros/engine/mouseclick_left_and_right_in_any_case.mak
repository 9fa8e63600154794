REM The two buttons.
MOUSECLICK=left
REM erwartet: Maustaste gedrückt: 1
MOUSECLICK=RIGHT
REM erwartet: Maustaste gedrückt: 2
