REM Mark, verb and name are compared in upper case, umlauts included.
goto=zurück
REM erwartet: Sprungmarke (MARK=ZURÜCK) gefunden: 4
MSG=übersprungen
Mark=ZURÜCK
MSG=da
REM erwartet: MSG: da
