REM erwartet: FormatString: Formatieren nicht möglich, da der Wert kein Datum ist.
REM erwartet: FormatString: 
REM erwartet: MSG: 
DIM Tag
Tag=FORMATSTRING(31.02.2003,ddmmyyyy,DATE)
MSG=Tag
