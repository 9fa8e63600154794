REM Blanks around a number pass the numeric test and stay in the value.
REM einstellung: [Einkommensteuer]
REM einstellung: Veranlagungsjahr=2003, 2004
NEXT VJ
REM erwartet: NextYear
MSG=$WJ!
REM erwartet: MSG:  2004!
