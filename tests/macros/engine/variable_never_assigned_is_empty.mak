REM A declared variable without a value gives the empty text.
DIM x
MSG=x
REM erwartet: MSG: 
