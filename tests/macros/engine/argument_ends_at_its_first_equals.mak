REM Single quotes do not help: what is left of the quoted text has an open quote.
MSG=a=b
REM erwartet: MSG: a
MSG='a=b'
REM erwartet: MSG: 
IF STRCOMP=a,b=c,d
REM erwartet: STRCOMP: a, b = False
ENDIF
MSG==a
REM erwartet: MSG: 
