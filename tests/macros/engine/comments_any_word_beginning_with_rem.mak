REM Every line that begins with the letters REM in any case is a comment, whatever follows them.
REMOVE=1
Rem x
REM
rem
ReMsg=1
REMMSG=1
MSG=Ende
REM erwartet: MSG: Ende
