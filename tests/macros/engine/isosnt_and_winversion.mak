REM The simulated system is of the NT family, version 5.1.
DIM v
IF ISOSNT
MSG=NT
REM erwartet: MSG: NT
ELSE
MSG=9x
ENDIF
v=WINVERSION
MSG=v
REM erwartet: MSG: 5.1
v=WINVERSION()
MSG=v
REM erwartet: MSG: 5.1
