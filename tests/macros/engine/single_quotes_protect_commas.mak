REM They may stand anywhere in a field and never reach the verb.
IF STRCOMP='a,b',c
REM erwartet: STRCOMP: a,b, c = False
ENDIF
IF STRCOMP=a'b,c'd,e
REM erwartet: STRCOMP: ab,cd, e = False
ENDIF
MSG=a'b'c
REM erwartet: MSG: abc
MSG=''
REM erwartet: MSG: 
