REM Both have the empty name; the word alone is no mark.
GOTO=
REM erwartet: Sprungmarke (MARK=) gefunden: 5
MARK
MSG=übersprungen
MARK=
MSG=da
REM erwartet: MSG: da
