REM A line that begins with DIM stays a declaration, also when a variable has that name.
DIM Dimmer
Dimmer=VALUE(1)
MSG=Dimmer
REM erwartet: MSG: 
MSG=er
REM erwartet: MSG: er
