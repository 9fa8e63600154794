REM The line is compared as it stands in the file.
GOTO=Ende
MARK="Ende"
REM fehler: Sprungmarke (Ende) konnte nicht gefunden werden.
