SETFOCUS
REM erwartet: Der Fokus wurde gesetzt.
SETFOCUS=Export
REM erwartet: Der Fokus wurde gesetzt.
