REM A condition has no result, but its work is done.
DIM x
x=IF STRCOMP(a,b)
REM erwartet: STRCOMP: a, b = False
MSG=übergangen
ENDIF
MSG=x
REM erwartet: MSG: 
