REM A missing key gives the empty text.
DIM x
x=READINI(s,fehlt)
REM erwartet: ReadINI=
MSG=x
REM erwartet: MSG: 
