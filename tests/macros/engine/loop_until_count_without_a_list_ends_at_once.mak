REM No row was stored by SELECTLIST, and the index stands at the end already.
NEXT VJ
REM erwartet: NextYear
DO
MSG=da
REM erwartet: MSG: da
LOOP UNTIL COUNT
REM erwartet: Loop: YearCount=0 CurrYear=1
