REM Its end cannot be read, so the loop ends after one pass; nothing is checked there either.
DO
IF MATRIX.CHECKED
MSG=Zeile
ENDIF
LOOP UNTIL MATRIX.EOF
DO
IF MERMATRIX.CHECKED
MSG=Zeile
ENDIF
LOOP UNTIL MERMATRIX.EOF
MSG=fertig
REM erwartet: Loop: EOF
REM erwartet: Loop: EOF
REM erwartet: MSG: fertig
