REM erwartet: FormatString: 1.234.567,00
REM erwartet: MSG: 1.234.567,00
DIM Betrag
Betrag=FORMATSTRING('1234567,4','#,##0.00',long)
MSG=Betrag
