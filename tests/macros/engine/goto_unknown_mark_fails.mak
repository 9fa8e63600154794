REM The text holds the name as it was written.
GOTO=Nirgendwo
REM fehler: Sprungmarke (Nirgendwo) konnte nicht gefunden werden.
