REM A comma in front makes an empty first argument; one at the end adds none.
IF STRCOMP=,b
REM erwartet: STRCOMP: , b = False
ENDIF
IF STRCOMP=a,
REM erwartet: STRCOMP: a,  = False
ENDIF
IF STRCOMP=a,,c
REM erwartet: STRCOMP: a,  = False
ENDIF
IF STRCOMP=
REM erwartet: STRCOMP: ,  = True
ENDIF
MSG=
REM erwartet: MSG: 
MSG
REM erwartet: MSG: 
