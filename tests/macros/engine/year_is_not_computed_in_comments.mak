REM $WJ in a comment or a declaration is never looked at, so the count of years stays 0.
REM einstellung: [Einkommensteuer]
REM einstellung: Veranlagungsjahr=2003,2004
DIM $WJ
DO
NEXT VJ
LOOP UNTIL COUNT
REM erwartet: NextYear
REM erwartet: Loop: YearCount=0 CurrYear=1
