MARK=oben
REM A mark on line 0 is found and reported, but 0 means that no jump is pending, so the run goes on behind the GOTO.
GOTO=oben
REM erwartet: Sprungmarke (MARK=OBEN) gefunden: 0
MSG=weiter
REM erwartet: MSG: weiter
