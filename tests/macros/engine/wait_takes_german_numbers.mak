REM Blanks around, a thousands dot, a decimal comma that rounds to the even second half.
WAIT= 1.000
WAIT='1499,5'
SLEEP=500
MSG=$NOW
REM erwartet: MSG: 14.03.2006 09:30:03
