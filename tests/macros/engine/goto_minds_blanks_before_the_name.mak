REM Blanks between "=" and the name are part of the mark.
GOTO= Ende
MARK=Ende
REM fehler: Sprungmarke ( Ende) konnte nicht gefunden werden.
