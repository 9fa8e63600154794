REM A jump changes no condition: behind the ELSE the live branch goes on.
IF STRCOMP=a,a
REM erwartet: STRCOMP: a, a = True
GOTO=drin
REM erwartet: Sprungmarke (MARK=DRIN) gefunden: 7
ELSE
MSG=übersprungen
MARK=drin
MSG=da
REM erwartet: MSG: da
ENDIF
