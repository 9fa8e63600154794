REM The closing comma is quoted too, so no field is stored.
MSG='a,b
REM erwartet: MSG: 
IF STRCOMP='a,b
REM erwartet: STRCOMP: ,  = True
ENDIF
