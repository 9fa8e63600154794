REM erwartet: MatrixValue:  Pos: 0 Bereich: JAHR
REM erwartet: MSG: <>
MSG=<$MATRIXJAHR>
