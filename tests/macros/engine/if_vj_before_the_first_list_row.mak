REM No row was selected yet: the answer is true and the years begin again.
REM einstellung: [Einkommensteuer]
REM einstellung: Veranlagungsjahr=2003,2004
NEXT VJ
REM erwartet: NextYear
MSG=$WJ
REM erwartet: MSG: 2004
IF VJ
REM erwartet: VJ True
MSG=$WJ
REM erwartet: MSG: 2003
ENDIF
