REM erwartet: FormatString: 2003
REM erwartet: MSG: 2003
DIM Jahr
Jahr=FORMATSTRING(31.12.2003,yyyy,date)
MSG=Jahr
