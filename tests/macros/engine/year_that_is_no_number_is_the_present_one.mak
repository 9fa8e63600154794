REM Each element is tested by itself.
REM einstellung: [Einkommensteuer]
REM einstellung: Veranlagungsjahr=alle,,2004
MSG=$WJ
REM erwartet: MSG: 2006
NEXT VJ
REM erwartet: NextYear
MSG=$WJ
REM erwartet: MSG: 2006
NEXT VJ
REM erwartet: NextYear
MSG=$WJ
REM erwartet: MSG: 2004
