REM A line that begins with REM stays a comment, also when a variable has that name.
DIM REMOTE
REMOTE=VALUE(1)
MSG=REMOTE
REM erwartet: MSG: 
