REM A "$" name that comes out of a variable stays as it is, and so do commas, quotes and "=".
REM einstellung: [s]
REM einstellung: k=$DATE,'x'=y
DIM a
a=READINI(s,k)
REM erwartet: ReadINI=$DATE,'x'=y
MSG=a
REM erwartet: MSG: $DATE,'x'=y
