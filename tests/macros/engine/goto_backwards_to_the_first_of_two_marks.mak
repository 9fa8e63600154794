REM A jump back; the second visit ends the run.
DIM x
MARK=Ziel
IF STRCOMP=x,1
REM erwartet: STRCOMP: , 1 = False
STOP
ENDIF
x=VALUE(1)
REM erwartet: Variable wurde befüllt: 1
MARK=Ziel
GOTO=Ziel
REM erwartet: Sprungmarke (MARK=ZIEL) gefunden: 2
REM erwartet: STRCOMP: 1, 1 = True
REM angehalten
