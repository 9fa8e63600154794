REM The year at the index, which NEXT VJ moves; behind the end of the list it is the present year.
REM einstellung: [Einkommensteuer]
REM einstellung: Veranlagungsjahr=2003,2004
MSG=$WJ
REM erwartet: MSG: 2003
NEXT VJ
REM erwartet: NextYear
MSG=$WJ
REM erwartet: MSG: 2004
NEXT VJ
REM erwartet: NextYear
MSG=$WJ
REM erwartet: MSG: 2006
NEXT VJ
REM erwartet: NextYear
MSG=$WJ
REM erwartet: MSG: 2006
