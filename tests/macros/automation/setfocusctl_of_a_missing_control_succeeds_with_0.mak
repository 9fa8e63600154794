SETFOCUSCTL=Edit,,7
REM erwartet: Der Fokus wurde auf das Feld gesetzt. (0)
SETFOCUSCTL=Edit,,x
REM erwartet: Der Fokus wurde auf das Feld gesetzt. (0)
