REM A jump is an action like any other, and an unknown mark is no failure there.
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
GOTO=Ende
GOTO=gibt es nicht
ENDIF
MSG=weiter
REM erwartet: MSG: weiter
MARK=Ende
