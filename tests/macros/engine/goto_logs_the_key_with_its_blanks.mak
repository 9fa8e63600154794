REM The blank that the name ends with is trimmed for the comparison only.
GOTO='Ende '
REM erwartet: Sprungmarke (MARK=ENDE ) gefunden: 3
MARK=Ende
