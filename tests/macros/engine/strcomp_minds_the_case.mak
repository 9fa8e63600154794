REM Equal texts are equal to the letter.
IF STRCOMP=a,A
REM erwartet: STRCOMP: a, A = False
ENDIF
IF STRCOMP=1,01
REM erwartet: STRCOMP: 1, 01 = False
ENDIF
IF STRCOMP=ä,ä
REM erwartet: STRCOMP: ä, ä = True
ENDIF
