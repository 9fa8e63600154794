REM Only the field in which the quote stands open is lost, and what follows it.
IF STRCOMP=a,'b,c
REM erwartet: STRCOMP: a,  = False
ENDIF
