REM Thirteen fields: the first two reach the verb as always.
IF STRCOMP=a,a,3,4,5,6,7,8,9,10,11,12,13
REM erwartet: STRCOMP: a, a = True
MSG=ja
REM erwartet: MSG: ja
ENDIF
