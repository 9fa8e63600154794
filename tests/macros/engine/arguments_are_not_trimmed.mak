REM The blank behind the comma belongs to the second argument.
IF STRCOMP=a, a
REM erwartet: STRCOMP: a,  a = False
ENDIF
MSG= a
REM erwartet: MSG:  a
