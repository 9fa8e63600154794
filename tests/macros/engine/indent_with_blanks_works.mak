REM Blanks at both ends of a line are trimmed.
     MSG=1   
REM erwartet: MSG: 1
   REM kein Befehl
