REM The line is trimmed for the comparison, so a mark that would fail as a command can be jumped to.
GOTO=Ende
REM erwartet: Sprungmarke (MARK=ENDE) gefunden: 3
	 MARK=Ende
REM fehler: Unknown Command:  MARK
