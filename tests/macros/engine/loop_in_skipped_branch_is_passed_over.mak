REM DO and the loop's end run in a live branch only.
IF STRCOMP=a,b
REM erwartet: STRCOMP: a, b = False
DO
MSG=1
LOOP UNTIL COUNT
LOOP UNTIL MATRIX.EOF
LOOP UNTIL MERMATRIX.EOF
ENDIF
MSG=fertig
REM erwartet: MSG: fertig
