REM The parts behind the first "=" are joined with nothing between them: the section read here is "ab".
REM einstellung: [a]
REM einstellung: b=falsch
REM einstellung: [ab]
REM einstellung: c=richtig
DIM x
x=READINI(a=b,c)
REM erwartet: ReadINI=richtig
MSG=x
REM erwartet: MSG: richtig
