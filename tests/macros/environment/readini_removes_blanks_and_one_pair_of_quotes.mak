REM einstellung: [Eigene]
REM einstellung: a =  x y
REM einstellung: b = "  x  "
REM einstellung: [Andere]
REM einstellung: a = nein
DIM x
x=READINI(EIGENE,A)
REM erwartet: ReadINI=x y
MSG=x
REM erwartet: MSG: x y
x=READINI(Eigene,b)
REM erwartet: ReadINI=  x  
x=READINI(Eigene,fehlt)
REM erwartet: ReadINI=
x=READINI(Fehlt,a)
REM erwartet: ReadINI=
MSG=x
REM erwartet: MSG: 
