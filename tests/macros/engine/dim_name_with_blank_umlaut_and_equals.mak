REM A name may hold blanks and umlauts; one that holds "=" can never be assigned.
DIM Mein Größe
Mein Größe=VALUE(7)
REM erwartet: Variable wurde befüllt: 7
MSG=Mein Größe
REM erwartet: MSG: 7
DIM a=b
a=VALUE(8)
REM fehler: Unknown Command: A
